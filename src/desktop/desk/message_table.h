#ifndef VENDLINGUA_DESKTOP_DESK_MESSAGE_TABLE_H_
#define VENDLINGUA_DESKTOP_DESK_MESSAGE_TABLE_H_

#include <QAbstractTableModel>
#include <QIcon>
#include <QString>
#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <tuple>
#include <vector>

#include "core/desk/live_findings.h"
#include "core/desk/message_list.h"
#include "core/desk/row_state.h"
#include "core/desk/second_reference.h"
#include "core/document/workspace.h"
#include "core/marks/document_marks.h"
#include "desktop/desk/cell_painting.h"
#include "desktop/desk/text_search.h"

namespace vendlingua {

/// The messages of the document as a table. It holds which of them are listed, in which order, and
/// nothing else. A message that is edited stays in its row, whatever the list is filtered and
/// sorted by, until the list is made anew.
class MessageTable : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { kNumber, kOrigin, kDestination, kCells, kState, kMark };
  static constexpr int kColumns = 6;
  /// The word that a text begins with: the state without what is wrong, the mark without its
  /// remark.
  static constexpr int kWordRole = Qt::UserRole;

  MessageTable(const Workspace& workspace, const LiveFindings& findings, const DocumentMarks& marks,
               const SecondReference& second, QObject* parent);

  /// The document has changed.
  void Mirror();
  /// The interface language has changed.
  void MirrorHeadings();

  void SetFilter(MessageFilter filter);
  MessageFilter filter() const { return wishes_.filter; }
  /// What is marked in the cells.
  void SetSearch(const TextSearch& search);

  /// What the state of a row can be.
  static std::array<UiTextId, 4> StateWords();

  const std::vector<std::size_t>& messages() const { return messages_; }
  std::size_t MessageOf(const QModelIndex& index) const;
  /// No index when the message is not listed.
  QModelIndex IndexOf(std::size_t message, int column) const;
  ShownCells CellsOf(const QModelIndex& index) const;
  /// What the second reference says there; no cells beside the origin's column, and without one.
  ShownCells SecondCellsOf(const QModelIndex& index) const;
  bool HasSecondReference() const { return second_.IsThere(); }
  std::size_t Width() const { return workspace_.set.Width(); }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  void sort(int column, Qt::SortOrder order) override;

 private:
  /// What the list was made of: the file, its origin and destination, and how many messages.
  using Source = std::tuple<std::uint32_t, std::optional<int>, int, Phase, std::size_t>;

  Source CurrentSource() const;
  void MakeList();
  ShownCells Shown(std::size_t message, std::span<const DisplayCode> codes) const;
  QString TextOf(std::size_t message, int column) const;
  QString SpokenTextOf(std::size_t message, int column) const;
  QString WordOf(std::size_t message, int column) const;
  QString StateWordOf(std::size_t message) const;
  QString StateTextOf(std::size_t message) const;
  QString FindingsOf(std::size_t message) const;
  QString MarkWordOf(std::size_t message) const;
  QString MarkTextOf(std::size_t message) const;

  const Workspace& workspace_;
  const LiveFindings& findings_;
  const DocumentMarks& marks_;
  const SecondReference& second_;
  std::array<QIcon, 4> state_icons_;  // by RowState
  ListWishes wishes_;
  TextSearch search_;
  Source source_{};
  std::vector<std::size_t> messages_;
  std::vector<int> rows_;  // by message; -1 for one that is not listed
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_MESSAGE_TABLE_H_
