#ifndef VENDLINGUA_CORE_COMPARE_FLASH_FILES_H_
#define VENDLINGUA_CORE_COMPARE_FLASH_FILES_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/document/message_set.h"
#include "core/formats/flash_memory.h"

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

/// A run of bytes that differ, or that one of the files lacks.
struct ByteDifference {
  std::uint32_t address;
  std::uint32_t length;  ///< bytes
  BoardPlace place;      ///< that of all its bytes
};

struct FlashComparison {
  std::vector<ByteDifference> bytes;  ///< by address
  std::size_t unlisted = 0;           ///< runs beyond kMostDifferences

  bool Same() const { return bytes.empty(); }
};

/// Compares what two flash files put into the memory. With the dimensions of the board a run ends
/// with its message, so that each has one place.
FlashComparison CompareFlash(const FlashMemory& a, const FlashMemory& b,
                             const MessageSet* dimensions = nullptr);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_COMPARE_FLASH_FILES_H_
