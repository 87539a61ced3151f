#ifndef VENDLINGUA_CORE_MARKS_MESSAGE_MARK_H_
#define VENDLINGUA_CORE_MARKS_MESSAGE_MARK_H_

#include <string>

namespace vendlingua {

/// What a translator thinks of a message, the most urgent first.
enum class Mark { kNeedsWork, kDone, kNone };

/// What a translator notes beside a message.
struct MessageMark {
  Mark mark = Mark::kNone;
  std::string remark;  ///< UTF-8

  bool IsEmpty() const { return mark == Mark::kNone && remark.empty(); }
  bool operator==(const MessageMark&) const = default;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_MARKS_MESSAGE_MARK_H_
