#ifndef VENDLINGUA_TESTS_GUI_SUPPORT_DIALOG_ANSWERER_H_
#define VENDLINGUA_TESTS_GUI_SUPPORT_DIALOG_ANSWERER_H_

#include <QDialog>
#include <QList>
#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <deque>
#include <filesystem>
#include <functional>
#include <vector>

namespace vendlingua::test {

/// Answers the real modal dialogs of the program while it waits in them, in the order in which the
/// answers were given, and keeps what it saw. A message box with one button needs no answer. A
/// dialog that stays open after its answer takes the next one. A dialog that no answer was given
/// for is cancelled and counts as a surprise.
class DialogAnswerer : public QObject {
  Q_OBJECT

 public:
  DialogAnswerer();

  void Yes() { Expect(&DialogAnswerer::AnswerYes); }
  void No() { Expect(&DialogAnswerer::AnswerNo); }
  /// Clicks a button of a dialog by its name.
  void Click(const QString& button);
  /// Types `text` into an input box and accepts it.
  void Type(const QString& text);
  /// Cancels an input box or a file dialog.
  void Cancel() { Expect(&DialogAnswerer::Reject); }
  /// Chooses `path` in a file dialog.
  void Choose(const std::filesystem::path& path);
  /// Accepts a file dialog as it stands.
  void Accept() { Expect(&DialogAnswerer::AcceptDialog); }

  /// Does to a dialog what `answer` does, which tells whether it fits.
  using Answer = std::function<bool(QDialog&)>;
  void By(Answer answer) { Expect(std::move(answer)); }

  /// Called with every dialog before it is answered.
  std::function<void(QDialog&)> on_dialog;

  struct Box {
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString text;
    QString title;
    QMessageBox::StandardButtons buttons;
  };
  const std::vector<Box>& boxes() const { return boxes_; }
  /// An empty box when there was none.
  Box FirstBox() const { return boxes_.empty() ? Box() : boxes_.front(); }
  Box LastBox() const { return boxes_.empty() ? Box() : boxes_.back(); }
  struct Input {
    QString prompt;
    QString title;
    QString default_answer;
  };
  const std::vector<Input>& inputs() const { return inputs_; }
  struct FileQuestion {
    QString title;
    QStringList name_filters;  ///< as the dialog shows them
    QString suffix;
    QString folder;
    bool save;
    bool asks_before_overwriting;
  };
  const std::vector<FileQuestion>& files() const { return files_; }

  /// Dialogs that were not expected, and answers that were not used.
  QStringList Surprises() const;

 private:
  void Expect(Answer answer) { answers_.push_back(std::move(answer)); }
  void Poll();
  void AnswerNow(QDialog& dialog);
  void Surprise(QDialog& dialog);
  void Note(QDialog& dialog);
  static bool AnswerYes(QDialog& dialog);
  static bool AnswerNo(QDialog& dialog);
  static bool Reject(QDialog& dialog);
  static bool AcceptDialog(QDialog& dialog);

  QTimer timer_;
  /// Dialogs that are being answered: one, or one inside another.
  QList<QPointer<QDialog>> in_answer_;
  std::deque<Answer> answers_;
  std::vector<Box> boxes_;
  std::vector<Input> inputs_;
  std::vector<FileQuestion> files_;
  QStringList surprises_;
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_GUI_SUPPORT_DIALOG_ANSWERER_H_
