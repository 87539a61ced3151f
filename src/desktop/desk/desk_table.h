#ifndef VENDLINGUA_DESKTOP_DESK_DESK_TABLE_H_
#define VENDLINGUA_DESKTOP_DESK_DESK_TABLE_H_

#include <QTableView>
#include <cstddef>
#include <optional>

#include "core/document/workspace.h"
#include "desktop/desk/cells_delegate.h"
#include "desktop/desk/message_table.h"

namespace vendlingua {

/// The table of all messages (`DeskTable`). Its current row is the message that is shown.
class DeskTable : public QTableView {
  Q_OBJECT

 public:
  DeskTable(const Workspace& workspace, const LiveFindings& findings, const DocumentMarks& marks,
            const SecondReference& second, QWidget* parent);

  /// Shows the document and its current message.
  void Mirror();
  /// The interface language has changed.
  void MirrorCaptions();
  /// Makes headings and states fit in columns that come from another language.
  void WidenColumns();

  MessageTable& messages() { return *messages_; }
  const CellsDelegate& cells() const { return *cells_; }

 signals:
  /// The row of `message` was chosen.
  void MessageChosen(std::size_t message);
  void NextToDoWanted();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ShowDisplayType();
  void ShowCurrentMessage();
  void SetColumnWidths();
  int LeastWidth(int column) const;
  int StateWidth() const;
  void SetRowHeight();
  void Enter(Qt::KeyboardModifiers modifiers);

  const Workspace& workspace_;
  MessageTable* messages_;
  CellsDelegate* cells_;
  std::optional<std::size_t> display_type_;
  std::size_t width_ = 0;  // cells that the columns are wide enough for
  bool mirroring_ = false;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_DESK_TABLE_H_
