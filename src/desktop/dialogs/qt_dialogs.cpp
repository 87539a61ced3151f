#include "desktop/dialogs/qt_dialogs.h"

#include <QApplication>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <utility>

#include "core/presentation/view_state.h"
#include "desktop/dialogs/conflict_box.h"
#include "desktop/dialogs/file_dialog.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

QMessageBox::Icon IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kCritical:
      return QMessageBox::Critical;
    case MessageIcon::kExclamation:
      return QMessageBox::Warning;
    case MessageIcon::kQuestion:
      return QMessageBox::Question;
    case MessageIcon::kInformation:
      break;
  }
  return QMessageBox::Information;
}

// A question is answered by its buttons alone: were the Escape key a No, it would drop edits.
class Box : public QMessageBox {
 public:
  Box(bool question, QWidget* parent) : QMessageBox(parent), question_(question) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (!question_ || event->key() != Qt::Key_Escape) {
      QMessageBox::keyPressEvent(event);
    }
  }

  void closeEvent(QCloseEvent* event) override {
    if (question_) {
      event->ignore();
    } else {
      QMessageBox::closeEvent(event);
    }
  }

 private:
  bool question_;
};

QString TitleOf(const std::string& title) {
  return FromUtf8(title.empty() ? std::string(kApplicationTitle) : title);
}

}  // namespace

void QtDialogs::Attach(std::function<void()> refresh, const UiText& ui_text) {
  refresh_ = std::move(refresh);
  ui_text_ = &ui_text;
}

MessageAnswer QtDialogs::MessageBox(const MessageRequest& request) {
  BeforeDialog();
  const bool question = request.buttons == MessageButtons::kYesNo;
  Box box(question, owner_);
  box.setIcon(IconOf(request.icon));
  box.setWindowTitle(TitleOf(request.title));
  box.setTextFormat(Qt::PlainText);
  box.setText(FromUtf8(request.text));
  if (!question) {
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
    return MessageAnswer::kOk;
  }
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  box.setDefaultButton(QMessageBox::Yes);
  box.button(QMessageBox::Yes)->setText(FromUtf8(ui_text()[UiTextId::kYes]));
  box.button(QMessageBox::No)->setText(FromUtf8(ui_text()[UiTextId::kNo]));
  return box.exec() == QMessageBox::Yes ? MessageAnswer::kYes : MessageAnswer::kNo;
}

std::string QtDialogs::InputBox(const InputRequest& request) {
  BeforeDialog();
  QInputDialog dialog(owner_);
  dialog.setWindowTitle(TitleOf(request.title));
  dialog.setLabelText(FromUtf8(request.prompt));
  dialog.setTextValue(FromUtf8(request.default_answer));
  dialog.setCancelButtonText(FromUtf8(ui_text()[UiTextId::kCancel]));
  return dialog.exec() == QDialog::Accepted ? dialog.textValue().toStdString() : std::string();
}

std::optional<std::filesystem::path> QtDialogs::OpenFile(const FileRequest& request) {
  BeforeDialog();
  return FileDialog(request, QFileDialog::AcceptOpen, owner_).Ask();
}

std::optional<std::filesystem::path> QtDialogs::SaveFile(const FileRequest& request) {
  BeforeDialog();
  return FileDialog(request, QFileDialog::AcceptSave, owner_).Ask();
}

// One after the other.
std::vector<ConflictAnswer> QtDialogs::ResolveConflicts(const ConflictRequest& request) {
  BeforeDialog();
  std::vector<ConflictAnswer> answers;
  for (std::size_t i = 0; i < request.conflicts.size(); ++i) {
    const auto answer = ConflictBox(request, i, owner_).Ask();
    if (!answer) {
      return {};
    }
    answers.push_back(*answer);
  }
  return answers;
}

// Some operations ask for it at every line of a file; nobody sees more than one picture a frame.
void QtDialogs::LetPendingEventsRun() {
  constexpr qint64 kFrame = 16;  // milliseconds
  if (since_events_ran_.isValid() && since_events_ran_.elapsed() < kFrame) {
    return;
  }
  if (refresh_) {
    refresh_();
  }
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  since_events_ran_.start();
}

void QtDialogs::BeforeDialog() {
  ++opened_;
  if (refresh_) {
    refresh_();
  }
}

}  // namespace vendlingua
