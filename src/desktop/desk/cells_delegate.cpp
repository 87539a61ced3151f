#include "desktop/desk/cells_delegate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include "desktop/desk/cells_edit.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

constexpr int kMargin = 6;
constexpr int kLineGap = 2;  // between a text and the one below it

}  // namespace

CellsDelegate::CellsDelegate(const Workspace& workspace, const MessageTable& messages,
                             QObject* parent)
    : QStyledItemDelegate(parent), workspace_(workspace), messages_(messages) {}

// Origin and destination stand on one line, a second reference below the origin.
QPoint CellsDelegate::PlaceOfCells(const QRect& item, int line) const {
  const int lines = messages_.HasSecondReference() ? 2 : 1;
  const int height = lines * CellHeight() + (lines - 1) * kLineGap;
  return {item.x() + kMargin,
          item.y() + (item.height() - height) / 2 + line * (CellHeight() + kLineGap)};
}

void CellsDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
  const QStyle& style = option.widget != nullptr ? *option.widget->style() : *QApplication::style();
  // The whole item only where it marks the focus: of the others this is the panel alone.
  if (option.state.testFlag(QStyle::State_HasFocus)) {
    style.drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
  } else {
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
  }
  painter->save();
  painter->setFont(font_);
  PaintCells(*painter, PlaceOfCells(option.rect, 0), messages_.CellsOf(index));
  PaintCells(*painter, PlaceOfCells(option.rect, 1), messages_.SecondCellsOf(index));
  painter->restore();
}

QSize CellsDelegate::sizeHint(const QStyleOptionViewItem& /*option*/,
                              const QModelIndex& /*index*/) const {
  const int below = messages_.HasSecondReference() ? kLineGap + CellHeight() : 0;
  return SizeOfCells(messages_.Width())
      .grownBy({kMargin, kMargin / 2, kMargin, kMargin / 2 + below});
}

QWidget* CellsDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                     const QModelIndex& index) const {
  auto* editor = new CellsEdit(CellText(workspace_.set, messages_.MessageOf(index)), mode_, parent);
  editor->setFont(font_);
  editor->SetDisplay(workspace_.set.DisplayType);
  editor->setAccessibleName(FromUtf8(workspace_.ui_text[UiTextId::kDestinationHeading]));
  connect(editor, &CellsEdit::Edited, this, &CellsDelegate::Edited);
  connect(editor, &CellsEdit::NoRoom, this, &CellsDelegate::NoRoom);
  connect(editor, &CellsEdit::Refused, this, &CellsDelegate::Refused);
  connect(editor, &CellsEdit::ModeChanged, this, [this](CellText::Mode mode) {
    mode_ = mode;
    emit ModeChanged(mode);
  });
  return editor;
}

void CellsDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  static_cast<CellsEdit*>(editor)->ShowText(CellText(workspace_.set, messages_.MessageOf(index)));
}

void CellsDelegate::setModelData(QWidget* /*editor*/, QAbstractItemModel* /*model*/,
                                 const QModelIndex& /*index*/) const {}

void CellsDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                         const QModelIndex& /*index*/) const {
  editor->setGeometry(QRect(PlaceOfCells(option.rect, 0), SizeOfCells(messages_.Width())));
}

bool CellsDelegate::eventFilter(QObject* watched, QEvent* event) {
  auto* editor = qobject_cast<CellsEdit*>(watched);
  if (event->type() == QEvent::KeyPress && editor != nullptr) {
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
      emit closeEditor(editor);
      emit Entered(key.modifiers() & ~Qt::KeypadModifier);
      return true;
    }
    if (key.key() == Qt::Key_Escape) {
      editor->Revert();
    }
  }
  return QStyledItemDelegate::eventFilter(watched, event);
}

}  // namespace vendlingua
