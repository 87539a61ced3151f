#ifndef VENDLINGUA_CORE_COMPARE_FLASH_FILES_H_
#define VENDLINGUA_CORE_COMPARE_FLASH_FILES_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/document/message_set.h"
#include "core/formats/board_place.h"
#include "core/formats/flash_memory.h"

namespace vendlingua {

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
