#ifndef VENDLINGUA_CORE_FORMATS_BOARD_PLACE_H_
#define VENDLINGUA_CORE_FORMATS_BOARD_PLACE_H_

#include <cstddef>
#include <cstdint>
#include <optional>

#include "core/document/message_set.h"

namespace vendlingua {

/// Where an address lies in the message memory of a board.
struct BoardPlace {
  std::optional<std::size_t> slot;     ///< of a language, from 0; nothing outside the memory
  std::optional<std::size_t> message;  ///< nothing behind the last message of a slot

  bool operator==(const BoardPlace&) const = default;
};

/// The place of `address` on the board whose message file has the dimensions of `set`.
BoardPlace PlaceOf(const MessageSet& set, std::uint32_t address);

/// The address of the first cell of a message.
std::uint32_t AddressOf(const MessageSet& set, std::size_t slot, std::size_t message);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_BOARD_PLACE_H_
