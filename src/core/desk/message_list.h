#ifndef VENDLINGUA_CORE_DESK_MESSAGE_LIST_H_
#define VENDLINGUA_CORE_DESK_MESSAGE_LIST_H_

#include <cstddef>
#include <optional>
#include <vector>

#include "core/desk/live_findings.h"
#include "core/document/message_set.h"
#include "core/marks/document_marks.h"

namespace vendlingua {

/// Which messages are listed.
enum class MessageFilter { kAll, kToDo, kChanged, kFindings, kMarked };

/// What they are sorted by; among equals by their numbers.
enum class MessageOrder { kNumber, kOrigin, kDestination, kCells, kState, kMark };

struct ListWishes {
  MessageFilter filter = MessageFilter::kAll;
  MessageOrder order = MessageOrder::kNumber;
  bool descending = false;

  bool operator==(const ListWishes&) const = default;
};

/// The numbers of the messages in the order in which they are listed; none before an origin is
/// chosen.
std::vector<std::size_t> ListMessages(const MessageSet& set, const LiveFindings& findings,
                                      const DocumentMarks& marks, const ListWishes& wishes);

/// The next message behind `message` that is to do, beginning anew behind the last one; nothing
/// when no other is.
std::optional<std::size_t> NextToDo(const MessageSet& set, std::size_t message);
/// The same backwards.
std::optional<std::size_t> PreviousToDo(const MessageSet& set, std::size_t message);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_MESSAGE_LIST_H_
