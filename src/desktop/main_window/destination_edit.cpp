#include "desktop/main_window/destination_edit.h"

#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <algorithm>

#include "core/presentation/twips.h"
#include "desktop/fonts/display_font.h"
#include "desktop/fonts/widget_text.h"

namespace vendlingua {
namespace {

constexpr int kNoLimit = 32767;
// What an edit box without a frame keeps free beside its text.
constexpr int kInnerMargin = 2;

bool HoldsDraggedCode(const QMimeData& data) { return data.hasFormat(QString(kDraggedCodeType)); }

// The code of a key that types a character, or of a key such as Backspace. A shortcut has none;
// Control with Alt is how some keyboards type.
std::optional<DisplayCode> CodeOf(const QKeyEvent& event) {
  const auto characters = event.text().toUcs4();
  const bool shortcut = event.modifiers().testFlag(Qt::MetaModifier) ||
                        (event.modifiers().testFlag(Qt::ControlModifier) &&
                         !event.modifiers().testFlag(Qt::AltModifier));
  if (characters.size() != 1 || shortcut || event.key() == Qt::Key_Delete) {
    return std::nullopt;
  }
  return FromWidgetCharacter(characters.front());
}

// The box itself takes nothing back and does nothing again: the window does, for all messages.
bool TakesBack(const QKeyEvent& event) {
  return event.modifiers().testFlag(Qt::ControlModifier) &&
         (event.key() == Qt::Key_Z || event.key() == Qt::Key_Y);
}

}  // namespace

DestinationEdit::DestinationEdit(QWidget* parent) : QLineEdit(parent) {
  setObjectName(QStringLiteral("Text1"));
  setFrame(false);
  // The first character begins at the left edge, as it does in the first origin cell.
  setTextMargins(-kInnerMargin, 0, -kInnerMargin, 0);
  setEnabled(false);
  setValidator(&validator_);
  connect(&validator_, &DisplayTextValidator::Refused, this, &DestinationEdit::Refused);
  connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
    edited_ = true;
    emit TextChanged(FromWidgetText(text));
  });
  connect(QGuiApplication::clipboard(), &QClipboard::changed, this,
          &DestinationEdit::PutPlainTextOnClipboard);
}

void DestinationEdit::Show(const ViewState& view) {
  LimitLength(view.Text1.max_length == 0 ? kNoLimit : static_cast<int>(view.Text1.max_length));
  const bool opened = view.Text1.enabled && !isEnabled();
  setEnabled(view.Text1.enabled);
  if (opened) {
    setFocus();
  }
  const bool begins = opened || view.Label6 != message_;
  message_ = view.Label6;
  const QString shown = ToWidgetText(view.Text1.text);
  if (begins || shown != text()) {
    const int caret = begins ? 0 : cursorPosition();
    setText(shown);
    setCursorPosition(caret);
  }
}

// Setting a limit, even the same, moves the caret behind the text.
void DestinationEdit::LimitLength(int limit) {
  if (limit != maxLength()) {
    setMaxLength(limit);
  }
}

// Whatever the event changes takes the place of what is selected now.
bool DestinationEdit::event(QEvent* event) {
  validator_.Expect(text().size() - selectionLength());
  if (event->type() == QEvent::ShortcutOverride && TakesBack(*static_cast<QKeyEvent*>(event))) {
    event->ignore();
    return false;
  }
  return QLineEdit::event(event);
}

void DestinationEdit::contextMenuEvent(QContextMenuEvent* event) {
  constexpr int kOwnEntries = 2;  // the first ones of Qt's menu
  QMenu* menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const QList<QAction*> qts = menu->actions();
  for (QAction* entry : qts.first(kOwnEntries)) {
    menu->removeAction(entry);
  }
  menu->insertActions(qts.at(kOwnEntries), menu_entries_);
  menu->popup(event->globalPos());
}

void DestinationEdit::dragEnterEvent(QDragEnterEvent* event) {
  if (HoldsDraggedCode(*event->mimeData())) {
    event->acceptProposedAction();
  } else {
    QLineEdit::dragEnterEvent(event);
  }
}

void DestinationEdit::dragMoveEvent(QDragMoveEvent* event) {
  if (HoldsDraggedCode(*event->mimeData())) {
    event->acceptProposedAction();
  } else {
    QLineEdit::dragMoveEvent(event);
  }
}

void DestinationEdit::dropEvent(QDropEvent* event) {
  const QByteArray code = event->mimeData()->data(QString(kDraggedCodeType));
  if (code.size() == 1) {
    event->acceptProposedAction();
    emit CharacterDropped(static_cast<DisplayCode>(code.front()),
                          event->position().toPoint().x() - TextLeft());
  } else {
    QLineEdit::dropEvent(event);
  }
}

// Where the first character begins, in pixels: left of the edit box when the text is scrolled. The
// caret stands in the middle of its rectangle.
int DestinationEdit::TextLeft() const {
  const QRect caret = cursorRect();
  return caret.x() + caret.width() / 2 - cursorPosition() * PixelsFromTwips(kCellPitch);
}

// A dead key types its character through the input method.
void DestinationEdit::inputMethodEvent(QInputMethodEvent* event) {
  const DisplayCodes typed = FromWidgetText(event->commitString());
  QLineEdit::inputMethodEvent(event);
  if (!typed.empty()) {
    emit CharacterTyped(typed.back());
  }
}

void DestinationEdit::keyPressEvent(QKeyEvent* event) {
  if (TakesBack(*event)) {
    event->ignore();
    return;
  }
  if (TakeAltDigit(*event)) {
    return;
  }
  const auto code = CodeOf(*event);
  edited_ = false;
  QLineEdit::keyPressEvent(event);
  if (code) {
    emit CharacterTyped(*code);
  }
  if (code && !edited_) {
    emit KeyPressed();
  }
}

void DestinationEdit::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Alt) {
    TypeAltCode();
  }
  QLineEdit::keyReleaseEvent(event);
}

// Windows types Alt + 0nnn by itself.
bool DestinationEdit::TakeAltDigit([[maybe_unused]] const QKeyEvent& event) {
#ifndef Q_OS_WIN
  const bool alt_alone = (event.modifiers() & ~Qt::KeypadModifier) == Qt::AltModifier;
  if (alt_alone && event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9) {
    alt_digits_ += QChar(static_cast<char16_t>(event.key()));
    return true;
  }
#endif
  return false;
}

void DestinationEdit::TypeAltCode() {
  constexpr int kHighestCode = 255;
  const int number = alt_digits_.startsWith(QLatin1Char('0')) ? alt_digits_.toInt() : 0;
  alt_digits_.clear();
  if (number >= 1 && number <= kHighestCode) {
    const auto code = static_cast<DisplayCode>(number);
    insert(ToWidgetCharacter(code));
    emit CharacterTyped(code);
  }
}

// Catches every way of copying out of the edit box: the key, its menu, the selection. What another
// program put on the clipboard stays.
void DestinationEdit::PutPlainTextOnClipboard(QClipboard::Mode mode) {
  QClipboard* clipboard = QGuiApplication::clipboard();
  const QString copied = selectedText();
  const QString plain = ToPlainText(copied);
  if (plain != copied && clipboard->text(mode) == copied) {
    clipboard->setText(plain, mode);
  }
}

}  // namespace vendlingua
