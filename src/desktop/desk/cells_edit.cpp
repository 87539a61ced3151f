#include "desktop/desk/cells_edit.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <utility>

#include "desktop/desk/cell_painting.h"
#include "desktop/fonts/widget_text.h"

namespace vendlingua {
namespace {

// What an edit changed. The caret stands behind what was put in.
struct Change {
  std::size_t first;
  std::size_t last;  // of the text before: what was taken out ends before it
  QString put_in;
};

Change ChangeBetween(const QString& before, const QString& after, qsizetype caret) {
  const qsizetype kept_behind = after.size() - caret;
  const qsizetype last = std::max<qsizetype>(before.size() - kept_behind, 0);
  const auto [end, unused] =
      std::mismatch(before.begin(), before.begin() + last, after.begin(), after.begin() + caret);
  const qsizetype first = end - before.begin();
  return {static_cast<std::size_t>(first), static_cast<std::size_t>(last),
          after.mid(first, caret - first)};
}

}  // namespace

CellsEdit::CellsEdit(CellText text, CellText::Mode mode, QWidget* parent)
    : DestinationEdit(parent), text_(std::move(text)), first_text_(text_.Text()), mode_(mode) {
  setObjectName(QStringLiteral("DeskEdit"));
  setEnabled(true);
  QPalette colors = palette();
  colors.setColor(QPalette::Text, Qt::black);
  setPalette(colors);
  ShowCells(0);
  connect(this, &QLineEdit::textEdited, this, &CellsEdit::TakeEdit);
  connect(this, &DestinationEdit::CharacterDropped, this, &CellsEdit::TakeDrop);
}

void CellsEdit::ShowText(const CellText& text) {
  if (!std::ranges::equal(text.cells(), text_.cells())) {
    text_ = text;
    ShowCells(Caret());
  }
}

void CellsEdit::Revert() {
  if (text_.Text() != first_text_) {
    emit Edited(first_text_);
  }
}

void CellsEdit::ShowCells(std::size_t caret) {
  setText(ToWidgetText(text_.cells()));
  setCursorPosition(static_cast<int>(caret));
}

// The box has let the characters in. Here they find their cells.
void CellsEdit::TakeEdit(const QString& edited) {
  const Change change = ChangeBetween(ToWidgetText(text_.cells()), edited, cursorPosition());
  const bool types = change.first == change.last;
  const std::size_t caret = types ? change.first : text_.Erase(change.first, change.last);
  const auto typed =
      text_.Type(caret, FromWidgetText(change.put_in), types ? mode_ : CellText::Mode::kInsert);
  ShowCells(typed.caret);
  emit Edited(text_.Text());
  if (!typed.fits) {
    emit NoRoom();
  }
}

void CellsEdit::TakeDrop(DisplayCode code, int x) {
  const auto cell = static_cast<std::size_t>(std::max(x, 0) / CellPitch());
  if (!text_.BoardFills(cell) && text_.Type(cell, {&code, 1}, CellText::Mode::kOverwrite).fits) {
    ShowCells(cell + 1);
    emit Edited(text_.Text());
  }
}

void CellsEdit::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Insert && event->modifiers() == Qt::NoModifier) {
    mode_ = mode_ == CellText::Mode::kInsert ? CellText::Mode::kOverwrite : CellText::Mode::kInsert;
    emit ModeChanged(mode_);
    return;
  }
  if (event->key() == Qt::Key_End && event->modifiers() == Qt::NoModifier) {
    setCursorPosition(static_cast<int>(TrimRight(text_.cells()).size()));
    return;
  }
  DestinationEdit::keyPressEvent(event);
  LeaveBoardCells(event->key() == Qt::Key_Left);
}

void CellsEdit::mouseReleaseEvent(QMouseEvent* event) {
  DestinationEdit::mouseReleaseEvent(event);
  LeaveBoardCells(false);
}

void CellsEdit::LeaveBoardCells(bool backward) {
  const std::size_t place = backward ? text_.Backward(Caret()) : text_.Forward(Caret());
  if (place != Caret()) {
    const auto steps = static_cast<int>(place) - cursorPosition();
    cursorForward(hasSelectedText(), steps);
  }
}

void CellsEdit::paintEvent(QPaintEvent* event) {
  ShownCells cells{{text_.cells().begin(), text_.cells().end()}, {}, {}};
  for (std::size_t cell = 0; cell < cells.codes.size(); ++cell) {
    cells.board_fills.push_back(text_.BoardFills(cell));
  }
  {
    QPainter painter(this);
    PaintFields(painter, QPoint(0, 0), cells);
  }
  DestinationEdit::paintEvent(event);
}

}  // namespace vendlingua
