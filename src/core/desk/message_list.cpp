#include "core/desk/message_list.h"

#include <algorithm>
#include <utility>

#include "core/desk/row_state.h"

namespace vendlingua {
namespace {

bool PassesFilter(const MessageSet& set, const LiveFindings& findings, const DocumentMarks& marks,
                  std::size_t message, MessageFilter filter) {
  switch (filter) {
    case MessageFilter::kToDo:
      return IsToDo(set, message);
    case MessageFilter::kChanged:
      return IsChanged(set, message);
    case MessageFilter::kFindings:
      return !findings.Of(message).empty();
    case MessageFilter::kMarked:
      return !marks.Of(message).IsEmpty();
    case MessageFilter::kAll:
      break;
  }
  return true;
}

bool TextIsBefore(const DisplayText& a, const DisplayText& b) {
  return std::ranges::lexicographical_compare(a.Cells(), b.Cells());
}

// What has only a remark stands before what has nothing.
bool MarkIsBefore(const MessageMark& a, const MessageMark& b) {
  return std::pair(a.mark, a.remark.empty()) < std::pair(b.mark, b.remark.empty());
}

bool IsBefore(const MessageSet& set, const LiveFindings& findings, const DocumentMarks& marks,
              MessageOrder order, std::size_t a, std::size_t b) {
  switch (order) {
    case MessageOrder::kOrigin:
      return TextIsBefore(set.OriginText.at(a), set.OriginText.at(b));
    case MessageOrder::kDestination:
      return TextIsBefore(set.DestText.at(a), set.DestText.at(b));
    case MessageOrder::kCells:
      return CellsUsed(set, a) < CellsUsed(set, b);
    case MessageOrder::kState:
      return StateOf(set, findings, a) < StateOf(set, findings, b);
    case MessageOrder::kMark:
      return MarkIsBefore(marks.Of(a), marks.Of(b));
    case MessageOrder::kNumber:
      break;
  }
  return a < b;
}

std::optional<std::size_t> NextToDoInSteps(const MessageSet& set, std::size_t message,
                                           std::size_t step) {
  const std::size_t count = set.MessageCount();
  for (std::size_t n = 1; n < count; ++n) {
    const std::size_t next = (message + n * step) % count;
    if (IsToDo(set, next)) {
      return next;
    }
  }
  return std::nullopt;
}

}  // namespace

std::vector<std::size_t> ListMessages(const MessageSet& set, const LiveFindings& findings,
                                      const DocumentMarks& marks, const ListWishes& wishes) {
  std::vector<std::size_t> messages;
  if (set.phase < Phase::kOriginChosen) {
    return messages;
  }
  for (std::size_t message = 0; message < set.MessageCount(); ++message) {
    if (PassesFilter(set, findings, marks, message, wishes.filter)) {
      messages.push_back(message);
    }
  }
  std::ranges::stable_sort(messages, [&](std::size_t a, std::size_t b) {
    return wishes.descending ? IsBefore(set, findings, marks, wishes.order, b, a)
                             : IsBefore(set, findings, marks, wishes.order, a, b);
  });
  return messages;
}

std::optional<std::size_t> NextToDo(const MessageSet& set, std::size_t message) {
  return NextToDoInSteps(set, message, 1);
}

std::optional<std::size_t> PreviousToDo(const MessageSet& set, std::size_t message) {
  return NextToDoInSteps(set, message, set.MessageCount() - 1);
}

}  // namespace vendlingua
