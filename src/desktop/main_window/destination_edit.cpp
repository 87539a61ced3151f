#include "desktop/main_window/destination_edit.h"

#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QPalette>
#include <algorithm>

#include "core/presentation/twips.h"
#include "desktop/fonts/cell_colors.h"
#include "desktop/fonts/display_font.h"
#include "desktop/fonts/widget_text.h"
#include "desktop/main_window/file_drop.h"
#include "desktop/message_steps.h"

namespace vendlingua {
namespace {

constexpr int kNoLimit = 32767;
// What an edit box without a frame keeps free beside its text.
constexpr int kInnerMargin = 2;

bool HoldsDraggedCode(const QMimeData& data) { return data.hasFormat(QString(kDraggedCodeType)); }

// The code of a key that types a character on display type `display`, or of a key such as
// Backspace. A shortcut has none; Control with Alt is how some keyboards type.
std::optional<DisplayCode> CodeOf(const QKeyEvent& event, std::size_t display) {
  const auto characters = event.text().toUcs4();
  const bool shortcut = event.modifiers().testFlag(Qt::MetaModifier) ||
                        (event.modifiers().testFlag(Qt::ControlModifier) &&
                         !event.modifiers().testFlag(Qt::AltModifier));
  if (characters.size() != 1 || shortcut || event.key() == Qt::Key_Delete) {
    return std::nullopt;
  }
  const DisplayCodes codes = EnteredCodes(characters.front(), display);
  return codes.empty() ? std::nullopt : std::optional(codes.back());
}

// The box itself takes nothing back and does nothing again: the window does, for all messages.
bool TakesBack(const QKeyEvent& event) {
  return event.modifiers().testFlag(Qt::ControlModifier) &&
         (event.key() == Qt::Key_Z || event.key() == Qt::Key_Y);
}

// A cell of the board behind characters in the colour of the desktop's theme.
QColor BoardCellBehind(const QColor& text) {
  constexpr int kMidLightness = 128;
  constexpr int kDarker = 220;  // percent
  const QColor color(kBoardCell);
  return text.lightness() < kMidLightness ? color : color.darker(kDarker);
}

bool IsForWindow(const QKeyEvent& event) {
  return TakesBack(event) || MessageSteps::LeadsOn(event);
}

}  // namespace

DestinationEdit::DestinationEdit(QWidget* parent) : QLineEdit(parent) {
  setObjectName(QStringLiteral("Text1"));
  setFrame(false);
  // The first character begins at the left edge, as it does in the first origin cell.
  setTextMargins(-kInnerMargin, 0, -kInnerMargin, 0);
  setEnabled(false);
  // The cells of the board are drawn behind the text.
  QPalette colors = palette();
  colors.setColor(QPalette::Base, Qt::transparent);
  setPalette(colors);
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
  SetDisplay(view.display_type);
  board_cells_ = view.Text1.board_cells;
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

void DestinationEdit::SetDisplay(std::size_t display) {
  display_ = display;
  validator_.SetDisplay(display);
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
  if (event->type() == QEvent::ShortcutOverride && IsForWindow(*static_cast<QKeyEvent*>(event))) {
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
  } else if (!HoldsFiles(*event->mimeData())) {
    QLineEdit::dragEnterEvent(event);
  }
}

void DestinationEdit::dragMoveEvent(QDragMoveEvent* event) {
  if (HoldsDraggedCode(*event->mimeData())) {
    event->acceptProposedAction();
  } else if (!HoldsFiles(*event->mimeData())) {
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

void DestinationEdit::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(this);
    const int pitch = PixelsFromTwips(kCellPitch);
    const QColor color = BoardCellBehind(palette().color(QPalette::Text));
    for (std::size_t cell = 0; cell < board_cells_.size(); ++cell) {
      if (board_cells_[cell]) {
        painter.fillRect(TextLeft() + static_cast<int>(cell) * pitch, 0, pitch, height(), color);
      }
    }
  }
  QLineEdit::paintEvent(event);
}

// Where the first character begins, in pixels: left of the edit box when the text is scrolled. The
// caret stands in the middle of its rectangle.
int DestinationEdit::TextLeft() const {
  const QRect caret = cursorRect();
  return caret.x() + caret.width() / 2 - cursorPosition() * PixelsFromTwips(kCellPitch);
}

// A dead key types its character through the input method.
void DestinationEdit::inputMethodEvent(QInputMethodEvent* event) {
  const QList<uint> typed = event->commitString().toUcs4();
  const DisplayCodes codes =
      typed.isEmpty() ? DisplayCodes() : EnteredCodes(typed.back(), display_);
  QLineEdit::inputMethodEvent(event);
  if (!codes.empty()) {
    emit CharacterTyped(codes.back());
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
  const auto code = CodeOf(*event, display_);
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
