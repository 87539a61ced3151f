#ifndef VENDLINGUA_DESKTOP_DESK_CELLS_DELEGATE_H_
#define VENDLINGUA_DESKTOP_DESK_CELLS_DELEGATE_H_

#include <QFont>
#include <QStringList>
#include <QStyledItemDelegate>

#include "core/desk/cell_text.h"
#include "core/document/workspace.h"
#include "desktop/desk/message_table.h"

namespace vendlingua {

/// Draws texts as the cells of the display and edits them in place. What is typed is told at once;
/// ending the edit changes nothing more.
class CellsDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  CellsDelegate(const Workspace& workspace, const MessageTable& messages, QObject* parent);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;

  /// Spaced like cells.
  void SetDisplayFont(const QFont& font) { font_ = font; }

 signals:
  void Edited(const DisplayCodes& text) const;
  void NoRoom() const;
  void ModeChanged(CellText::Mode mode) const;
  /// `characters` have no display code and were not taken.
  void Refused(const QStringList& characters) const;
  /// The edit ended by Enter; together with Control the next message to do is wanted.
  void Entered(Qt::KeyboardModifiers modifiers) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// Of the first line of cells in a row, or of the one below it.
  QPoint PlaceOfCells(const QRect& item, int line) const;

  const Workspace& workspace_;
  const MessageTable& messages_;
  QFont font_;
  mutable CellText::Mode mode_ = CellText::Mode::kInsert;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_CELLS_DELEGATE_H_
