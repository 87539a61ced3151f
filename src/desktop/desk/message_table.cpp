#include "desktop/desk/message_table.h"

#include <fmt/format.h>

#include <algorithm>

#include "core/desk/finding_text.h"
#include "core/document/alphabet.h"
#include "desktop/icon.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

constexpr std::array<UiTextId, MessageTable::kColumns> kHeadings = {
    UiTextId::kNumber, UiTextId::kOriginHeading, UiTextId::kDestinationHeading,
    UiTextId::kCells,  UiTextId::kState,         UiTextId::kMark};

// By RowState.
constexpr std::array<UiTextId, 4> kStateWords = {UiTextId::kFinding, UiTextId::kToDo,
                                                 UiTextId::kChanged, UiTextId::kDone};

}  // namespace

MessageTable::MessageTable(const Workspace& workspace, const LiveFindings& findings,
                           const DocumentMarks& marks, const SecondReference& second,
                           QObject* parent)
    : QAbstractTableModel(parent),
      workspace_(workspace),
      findings_(findings),
      marks_(marks),
      second_(second),
      state_icons_{Icon(QLatin1String("finding")), Icon(QLatin1String("todo")),
                   Icon(QLatin1String("changed")), Icon(QLatin1String("done"))} {}

MessageTable::Source MessageTable::CurrentSource() const {
  const MessageSet& set = workspace_.set;
  return {set.OpenedFiles, set.origin_language, set.DestLang, set.phase, set.MessageCount()};
}

void MessageTable::Mirror() {
  if (source_ != CurrentSource()) {
    MakeList();
  } else if (!messages_.empty()) {
    emit dataChanged(index(0, 0), index(rowCount() - 1, kColumns - 1));
  }
}

// The table lays all of itself out again then.
void MessageTable::MirrorHeadings() { emit headerDataChanged(Qt::Horizontal, 0, kColumns - 1); }

void MessageTable::MakeList() {
  beginResetModel();
  source_ = CurrentSource();
  messages_ = ListMessages(workspace_.set, findings_, marks_, wishes_);
  rows_.assign(workspace_.set.MessageCount(), -1);
  for (std::size_t row = 0; row < messages_.size(); ++row) {
    rows_[messages_[row]] = static_cast<int>(row);
  }
  endResetModel();
}

void MessageTable::SetFilter(MessageFilter filter) {
  wishes_.filter = filter;
  MakeList();
}

void MessageTable::SetSearch(const TextSearch& search) {
  search_ = search;
  Mirror();
}

void MessageTable::sort(int column, Qt::SortOrder order) {
  wishes_.order = static_cast<MessageOrder>(column);
  wishes_.descending = order == Qt::DescendingOrder;
  MakeList();
}

std::array<UiTextId, 4> MessageTable::StateWords() { return kStateWords; }

std::size_t MessageTable::MessageOf(const QModelIndex& index) const {
  return messages_.at(static_cast<std::size_t>(index.row()));
}

QModelIndex MessageTable::IndexOf(std::size_t message, int column) const {
  return message < rows_.size() && rows_[message] >= 0 ? index(rows_[message], column)
                                                       : QModelIndex();
}

ShownCells MessageTable::CellsOf(const QModelIndex& index) const {
  const MessageSet& set = workspace_.set;
  const std::size_t message = MessageOf(index);
  const bool origin = index.column() == kOrigin;
  if (!origin && !set.DestinationIsOpen()) {
    return {};
  }
  const auto codes = (origin ? set.OriginText : set.DestText).at(message).First(set.Width());
  ShownCells cells = Shown(message, codes);
  if (search_.LooksAt(origin ? SearchedTexts::kOrigin : SearchedTexts::kDestination)) {
    cells.hits = search_.HitsIn(codes, Alphabet::Of(set.DisplayType));
  }
  return cells;
}

ShownCells MessageTable::SecondCellsOf(const QModelIndex& index) const {
  const std::size_t message = MessageOf(index);
  return index.column() == kOrigin && second_.IsThere() ? Shown(message, second_.Of(message))
                                                        : ShownCells();
}

ShownCells MessageTable::Shown(std::size_t message, std::span<const DisplayCode> codes) const {
  ShownCells cells;
  cells.codes.assign(codes.begin(), codes.end());
  for (std::size_t cell = 0; cell < codes.size(); ++cell) {
    cells.board_fills.push_back(workspace_.set.BoardFills(message, cell));
  }
  return cells;
}

// As it is seen, the second reference included.
QString MessageTable::SpokenTextOf(std::size_t message, int column) const {
  QString text = TextOf(message, column);
  if (column != kOrigin || !second_.IsThere()) {
    return text;
  }
  const Alphabet& alphabet = Alphabet::Of(workspace_.set.DisplayType);
  return QStringLiteral("%1, %2: %3")
      .arg(text, FromUtf8(second_.name()), FromUtf8(alphabet.TextOf(second_.Of(message))));
}

QString MessageTable::TextOf(std::size_t message, int column) const {
  const MessageSet& set = workspace_.set;
  if (column == kNumber) {
    return QString::number(message);
  }
  if (column == kOrigin) {
    return FromUtf8(
        Alphabet::Of(set.DisplayType).TextOf(set.OriginText.at(message).First(set.Width())));
  }
  if (!set.DestinationIsOpen()) {
    return {};
  }
  if (column == kDestination) {
    return FromUtf8(
        Alphabet::Of(set.DisplayType).TextOf(set.DestText.at(message).First(set.Width())));
  }
  if (column == kCells) {
    return FromUtf8(fmt::format("{}/{}", CellsUsed(set, message), set.Width()));
  }
  return column == kState ? StateTextOf(message) : MarkTextOf(message);
}

QString MessageTable::StateWordOf(std::size_t message) const {
  const auto state = static_cast<std::size_t>(StateOf(workspace_.set, findings_, message));
  return FromUtf8(workspace_.ui_text[kStateWords.at(state)]);
}

QString MessageTable::StateTextOf(std::size_t message) const {
  QString word = StateWordOf(message);
  if (!findings_.NeedsWork(message)) {
    return word;
  }
  const auto& findings = findings_.Of(message);
  const auto urgent = std::ranges::min_element(findings, {}, &Finding::severity);
  return QStringLiteral("%1: %2").arg(word, FromUtf8(SentenceOf(*urgent, workspace_.ui_text)));
}

QString MessageTable::MarkWordOf(std::size_t message) const {
  const MessageMark& mark = marks_.Of(message);
  if (mark.mark == Mark::kNone) {
    return FromUtf8(mark.remark);
  }
  const UiTextId id = mark.mark == Mark::kDone ? UiTextId::kMarkedDone : UiTextId::kNeedsWork;
  return FromUtf8(workspace_.ui_text[id]);
}

QString MessageTable::MarkTextOf(std::size_t message) const {
  const MessageMark& mark = marks_.Of(message);
  const QString word = MarkWordOf(message);
  return mark.mark == Mark::kNone || mark.remark.empty()
             ? word
             : QStringLiteral("%1: %2").arg(word, FromUtf8(mark.remark));
}

QString MessageTable::WordOf(std::size_t message, int column) const {
  if (!workspace_.set.DestinationIsOpen()) {
    return {};
  }
  return column == kState  ? StateWordOf(message)
         : column == kMark ? MarkWordOf(message)
                           : TextOf(message, column);
}

QString MessageTable::FindingsOf(std::size_t message) const {
  QStringList sentences;
  for (const Finding& finding : findings_.Of(message)) {
    sentences += FromUtf8(SentenceOf(finding, workspace_.ui_text));
  }
  return sentences.join(QLatin1Char('\n'));
}

int MessageTable::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(messages_.size());
}

int MessageTable::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

QVariant MessageTable::data(const QModelIndex& index, int role) const {
  const std::size_t message = MessageOf(index);
  switch (role) {
    case Qt::DisplayRole:
      return TextOf(message, index.column());
    case kWordRole:
      return WordOf(message, index.column());
    case Qt::AccessibleTextRole:
      return SpokenTextOf(message, index.column());
    case Qt::DecorationRole:
      return index.column() == kState && workspace_.set.DestinationIsOpen()
                 ? state_icons_.at(
                       static_cast<std::size_t>(StateOf(workspace_.set, findings_, message)))
                 : QVariant();
    case Qt::ToolTipRole:
      return index.column() == kState  ? QVariant(FindingsOf(message))
             : index.column() == kMark ? QVariant(MarkTextOf(message))
                                       : QVariant();
    case Qt::TextAlignmentRole:
      return index.column() == kNumber || index.column() == kCells
                 ? QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter))
                 : QVariant();
    default:
      return {};
  }
}

QVariant MessageTable::headerData(int section, Qt::Orientation orientation, int role) const {
  return orientation == Qt::Horizontal && role == Qt::DisplayRole
             ? FromUtf8(workspace_.ui_text[kHeadings.at(static_cast<std::size_t>(section))])
             : QVariant();
}

Qt::ItemFlags MessageTable::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  const bool editable = index.column() == kDestination && workspace_.set.DestinationIsOpen();
  return editable ? flags | Qt::ItemIsEditable : flags;
}

}  // namespace vendlingua
