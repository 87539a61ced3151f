#include "desktop/desk/word_delegate.h"

#include <QStyle>

#include "desktop/desk/message_table.h"

namespace vendlingua {
namespace {

// Less than this behind a word says nothing.
constexpr QLatin1String kLeastBehindTheWord(": mmmmmmmm");

int RoomForText(const QStyleOptionViewItem& option) {
  const QStyle& style = *option.widget->style();
  const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, option.widget) + 1;
  return style.subElementRect(QStyle::SE_ItemViewItemText, &option, option.widget).width() -
         2 * margin;
}

}  // namespace

void WordDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const QString word = index.data(MessageTable::kWordRole).toString();
  if (option->text == word) {
    return;
  }
  const int room = RoomForText(*option);
  const QFontMetrics& metrics = option->fontMetrics;
  if (metrics.horizontalAdvance(option->text) > room &&
      metrics.horizontalAdvance(word + kLeastBehindTheWord) > room) {
    option->text = word;
  }
}

}  // namespace vendlingua
