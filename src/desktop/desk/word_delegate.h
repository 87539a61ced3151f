#ifndef VENDLINGUA_DESKTOP_DESK_WORD_DELEGATE_H_
#define VENDLINGUA_DESKTOP_DESK_WORD_DELEGATE_H_

#include <QStyledItemDelegate>

namespace vendlingua {

/// Draws texts that begin with a word and then tell more (`kWordRole`). Where a column has no room
/// for the word with something behind it, the word stands alone.
class WordDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_WORD_DELEGATE_H_
