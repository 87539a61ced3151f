#include "core/formats/board_place.h"

namespace vendlingua {

BoardPlace PlaceOf(const MessageSet& set, std::uint32_t address) {
  const std::size_t slot_length = set.SlotLength();
  if (address < set.MemStart || slot_length == 0) {
    return {};
  }
  const std::size_t offset = address - set.MemStart;
  const std::size_t slot = offset / slot_length;
  if (slot >= set.SlotCount()) {
    return {};
  }
  const std::size_t message = offset % slot_length / set.Width();
  return {slot, message < set.MessageCount() ? std::optional(message) : std::nullopt};
}

std::uint32_t AddressOf(const MessageSet& set, std::size_t slot, std::size_t message) {
  return static_cast<std::uint32_t>(set.MemStart + slot * set.SlotLength() + message * set.Width());
}

}  // namespace vendlingua
