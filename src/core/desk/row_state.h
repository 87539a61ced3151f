#ifndef VENDLINGUA_CORE_DESK_ROW_STATE_H_
#define VENDLINGUA_CORE_DESK_ROW_STATE_H_

#include <cstddef>

#include "core/desk/live_findings.h"
#include "core/document/message_set.h"

namespace vendlingua {

/// How far the translation of one message has come, the most urgent state first.
enum class RowState {
  kFinding,  ///< something is wrong with it
  kToDo,     ///< it says nothing, or what the origin says
  kChanged,  ///< translated, and changed since the language was opened
  kDone,
};

/// Whether message `message` waits for its translation: its origin says something, and the
/// destination nothing or the same. Cells that the board fills say nothing.
bool IsToDo(const MessageSet& set, std::size_t message);
/// The same of a text of another language.
bool IsToDo(const MessageSet& set, std::size_t message, const DisplayText& translation);

/// Whether the destination text is another one than when the language was opened.
bool IsChanged(const MessageSet& set, std::size_t message);

/// Cells of the destination text up to the last one that is not blank.
std::size_t CellsUsed(const MessageSet& set, std::size_t message);

RowState StateOf(const MessageSet& set, const LiveFindings& findings, std::size_t message);

/// How many of the messages are translated.
struct Progress {
  std::size_t done = 0;
  std::size_t messages = 0;

  bool operator==(const Progress&) const = default;
};
Progress ProgressOf(const MessageSet& set);
/// The same of the texts of another language.
Progress ProgressOf(const MessageSet& set, const MessageTexts& texts);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_ROW_STATE_H_
