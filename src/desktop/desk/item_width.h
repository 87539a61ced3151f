#ifndef VENDLINGUA_DESKTOP_DESK_ITEM_WIDTH_H_
#define VENDLINGUA_DESKTOP_DESK_ITEM_WIDTH_H_

#include <QAbstractItemView>
#include <QStyle>
#include <QStyleOptionViewItem>

namespace vendlingua {

/// Pixels that a list needs to show an icon and `text` behind it.
inline int ItemWidth(const QAbstractItemView& list, const QString& text) {
  QStyleOptionViewItem item;
  item.initFrom(&list);
  item.font = list.font();
  item.features = QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::HasDecoration;
  const int icon = list.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &list);
  item.decorationSize = QSize(icon, icon);
  item.text = text;
  return list.style()->sizeFromContents(QStyle::CT_ItemViewItem, &item, QSize(), &list).width();
}

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_ITEM_WIDTH_H_
