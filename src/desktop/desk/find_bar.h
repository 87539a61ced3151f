#ifndef VENDLINGUA_DESKTOP_DESK_FIND_BAR_H_
#define VENDLINGUA_DESKTOP_DESK_FIND_BAR_H_

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QWidget>

#include "core/texts/ui_text.h"
#include "desktop/desk/text_search.h"

namespace vendlingua {

/// Where is asked for what to find (`DeskFind`) and what to put in its place.
class FindBar : public QWidget {
  Q_OBJECT

 public:
  explicit FindBar(QWidget* parent);

  /// Captions the controls in the interface language.
  void SetCaptions(const UiText& ui_text);

  /// Puts a box into the room beside the replacement.
  void AddBeside(QWidget& box) { beside_->addWidget(&box); }

  /// What is asked for, in the characters of `alphabet`.
  TextSearch SearchIn(const Alphabet& alphabet) const;
  QString ReplaceBy() const { return replace_by_->text(); }

  /// Tells what the search came to; `found` when there is something to go to and to replace.
  void ShowResult(const QString& result, bool found);

  /// Gets the keyboard for another search.
  void Begin();

 signals:
  void SearchChanged();
  void NextWanted();
  void PreviousWanted();
  void ReplaceWanted();
  /// Back to the messages.
  void Left();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildFindRow();
  void BuildReplaceRow();
  void LayOut();

  QLineEdit* find_;
  QComboBox* texts_;
  QToolButton* expression_;
  QToolButton* previous_;
  QToolButton* next_;
  QLabel* result_;
  QLineEdit* replace_by_;
  QPushButton* replace_;
  QHBoxLayout* beside_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_FIND_BAR_H_
