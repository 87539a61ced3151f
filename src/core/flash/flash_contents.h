#ifndef VENDLINGUA_CORE_FLASH_FLASH_CONTENTS_H_
#define VENDLINGUA_CORE_FLASH_FLASH_CONTENTS_H_

#include <cstdint>
#include <optional>
#include <vector>

#include "core/document/message_set.h"
#include "core/formats/flash_file.h"

// What a flash file tells about itself and about the languages in it.

namespace vendlingua {

/// Whether the file begins with the header of an identified copy.
bool IsIdentifiedCopy(const FlashFile& file);

/// Model and version of the firmware, six characters as "0417AB": what the header of an identified
/// copy says, otherwise what stands in the first record as in the first message of a board with
/// nine slots. Nothing where that is no model of four digits with its version.
std::optional<DisplayCodes> Identification(const FlashFile& file);

/// The addresses that a file leaves out between `ranges`, which are in ascending order.
std::vector<AddressRange> GapsBetween(const std::vector<AddressRange>& ranges);

/// The dimensions of the board where the file alone tells them: its firmware is one whose memory is
/// known, and what it holds begins with that memory and ends within it.
std::optional<MessageSet> KnownDimensions(const FlashFile& file);

/// The place of a language in the message memory.
struct FlashSlot {
  std::uint32_t address;
  std::uint32_t length;  ///< bytes
  bool is_held;          ///< the file holds bytes of it
  DisplayCodes name;     ///< of the language, without blanks around it; empty where none is known
};

/// The slots of a board whose message file has the dimensions of `set`, as far as addresses reach.
std::vector<FlashSlot> SlotsOf(const FlashMemory& memory, const MessageSet& set);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FLASH_FLASH_CONTENTS_H_
