#ifndef VENDLINGUA_CORE_TRANSFER_MATCHING_H_
#define VENDLINGUA_CORE_TRANSFER_MATCHING_H_

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "core/document/display_text.h"

namespace vendlingua {

/// For each message of one text list the number of the message of another one that it is.
using Matches = std::vector<std::optional<std::size_t>>;

/// Which message of `before` each message of `now` is, although messages that were inserted or
/// removed gave it another number; nothing for a message that is new, was reworded, or cannot be
/// told from another one. A message has kept its text, and it is known by that alone where nothing
/// else reads the same, by the message before or behind it, or else by its number.
Matches SameMessages(std::span<const DisplayText> now, std::span<const DisplayText> before);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_TRANSFER_MATCHING_H_
