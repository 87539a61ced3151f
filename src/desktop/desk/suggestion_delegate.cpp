#include "desktop/desk/suggestion_delegate.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

namespace vendlingua {
namespace {

constexpr int kSpace = 4;  // pixels around the parts

}  // namespace

SuggestionDelegate::SuggestionDelegate(const std::vector<ShownSuggestion>& suggestions,
                                       QObject* parent)
    : QStyledItemDelegate(parent), suggestions_(suggestions) {}

void SuggestionDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
  const QStyle& style = *option.widget->style();
  style.drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
  const ShownSuggestion& shown = suggestions_.at(static_cast<std::size_t>(index.row()));
  const QRect item = option.rect.adjusted(kSpace, kSpace, -kSpace, -kSpace);
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  const QString heading = QStringLiteral("%1   %2   %3").arg(shown.key, shown.rating, shown.source);
  painter->save();
  painter->setPen(option.palette.color(shown.codes ? QPalette::Normal : QPalette::Disabled,
                                       selected ? QPalette::HighlightedText : QPalette::Text));
  painter->drawText(item, Qt::AlignLeft | Qt::AlignTop,
                    option.fontMetrics.elidedText(heading, Qt::ElideMiddle, item.width()));
  painter->setFont(font_);
  const QPoint origin(item.x(), item.y() + option.fontMetrics.height() + kSpace / 2);
  PaintCells(*painter, origin, shown.origin);
  PaintCells(*painter, origin + QPoint(0, CellHeight()), shown.translation);
  painter->restore();
}

QSize SuggestionDelegate::sizeHint(const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const {
  const ShownSuggestion& shown = suggestions_.at(static_cast<std::size_t>(index.row()));
  return {SizeOfCells(shown.origin.codes.size()).width() + 2 * kSpace,
          option.fontMetrics.height() + 2 * CellHeight() + 3 * kSpace};
}

}  // namespace vendlingua
