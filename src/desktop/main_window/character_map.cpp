#include "desktop/main_window/character_map.h"

#include <QApplication>
#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>

#include "desktop/element_name.h"
#include "desktop/fonts/widget_text.h"
#include "desktop/main_window/destination_edit.h"

namespace vendlingua {
namespace {

constexpr int kColumns = 16;
constexpr int kRows = 16;
constexpr int kMapCellWidth = 20;
constexpr int kMapCellHeight = 23;

}  // namespace

CharacterMap::CharacterMap(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("CharacterMap"));
  setFocusPolicy(Qt::TabFocus);
  for (int code = 1; code <= kCodes; ++code) {
    auto* cell = new QLabel(this);
    cell->setObjectName(ElementName("Label1", code - 1));
    cell->setTextFormat(Qt::PlainText);
    cell->setAlignment(Qt::AlignCenter);
    cell->setText(ToWidgetCharacter(static_cast<DisplayCode>(code)));
    const QString hint = QStringLiteral("ALT + 0%1").arg(code);
    cell->setToolTip(hint);
    cell->setAccessibleName(ToPlainText(cell->text()) + QLatin1Char(' ') + hint);
    cell->setGeometry(code % kColumns * kMapCellWidth, code / kColumns * kMapCellHeight,
                      kMapCellWidth, kMapCellHeight);
    Label1_.at(static_cast<std::size_t>(code - 1)) = cell;
  }
}

QSize CharacterMap::MapSize() { return {kColumns * kMapCellWidth, kRows * kMapCellHeight}; }

void CharacterMap::SetDisplayFont(const QFont& font) {
  for (QLabel* cell : Label1_) {
    cell->setFont(font);
  }
}

void CharacterMap::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  Highlight(true);
}

void CharacterMap::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  Highlight(false);
}

void CharacterMap::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return MoveCursor(cursor_ - 1);
    case Qt::Key_Right:
      return MoveCursor(cursor_ + 1);
    case Qt::Key_Up:
      return MoveCursor(cursor_ - kColumns);
    case Qt::Key_Down:
      return MoveCursor(cursor_ + kColumns);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      emit Typed(static_cast<DisplayCode>(cursor_));
      return;
    default:
      QWidget::keyPressEvent(event);
  }
}

void CharacterMap::mousePressEvent(QMouseEvent* event) {
  pressed_.reset();
  const QWidget* cell = childAt(event->pos());
  for (int code = 1; code <= kCodes; ++code) {
    if (cell == &CellOf(code)) {
      pressed_ = static_cast<DisplayCode>(code);
    }
  }
  if (pressed_) {
    pressed_at_ = event->pos();
    MoveCursor(*pressed_);
    emit Picked(*pressed_);
  }
}

void CharacterMap::mouseMoveEvent(QMouseEvent* event) {
  if (pressed_ &&
      (event->pos() - pressed_at_).manhattanLength() >= QApplication::startDragDistance()) {
    StartDrag(*pressed_);
    pressed_.reset();
  }
}

void CharacterMap::MoveCursor(int code) {
  if (code >= 1 && code <= kCodes) {
    Highlight(false);
    cursor_ = code;
    Highlight(hasFocus());
    emit CursorMoved(CellOf(code).geometry());
  }
}

void CharacterMap::Highlight(bool on) {
  QLabel& cell = CellOf(cursor_);
  cell.setAutoFillBackground(on);
  cell.setBackgroundRole(on ? QPalette::Highlight : QPalette::NoRole);
  cell.setForegroundRole(on ? QPalette::HighlightedText : QPalette::NoRole);
}

void CharacterMap::StartDrag(DisplayCode code) {
  auto* dragged = new QMimeData;
  dragged->setData(QString(kDraggedCodeType), QByteArray(1, static_cast<char>(code)));
  auto* drag = new QDrag(this);
  drag->setMimeData(dragged);
  drag->setPixmap(CellOf(code).grab());
  drag->exec(Qt::CopyAction);
}

}  // namespace vendlingua
