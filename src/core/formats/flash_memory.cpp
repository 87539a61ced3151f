#include "core/formats/flash_memory.h"

#include <algorithm>

namespace vendlingua {

void FlashMemory::Put(std::uint32_t address, std::span<const std::uint8_t> bytes) {
  while (!bytes.empty()) {
    const std::size_t start = address % kPageBytes;
    const auto part = bytes.first(std::min(bytes.size(), kPageBytes - start));
    Page& page = pages_[static_cast<std::uint32_t>(address / kPageBytes)];
    for (std::size_t i = 0; i < part.size(); ++i) {
      page.bytes.at(start + i) = part[i];
      page.given.set(start + i);
    }
    address += static_cast<std::uint32_t>(part.size());
    bytes = bytes.subspan(part.size());
  }
}

std::optional<std::uint8_t> FlashMemory::At(std::uint32_t address) const {
  const auto page = pages_.find(static_cast<std::uint32_t>(address / kPageBytes));
  const std::size_t place = address % kPageBytes;
  return page != pages_.end() && page->second.given[place]
             ? std::optional(page->second.bytes.at(place))
             : std::nullopt;
}

std::vector<AddressRange> FlashMemory::Ranges() const {
  std::vector<AddressRange> ranges;
  const auto add = [&](std::size_t first, std::size_t length) {
    if (ranges.empty() || ranges.back().End() != first) {
      ranges.push_back({static_cast<std::uint32_t>(first), 0});
    }
    ranges.back().length += static_cast<std::uint32_t>(length);
  };
  for (const auto& [number, page] : pages_) {
    const std::size_t start = number * kPageBytes;
    if (page.given.all()) {
      add(start, kPageBytes);
      continue;
    }
    for (std::size_t i = 0; i < kPageBytes; ++i) {
      if (page.given[i]) {
        add(start + i, 1);
      }
    }
  }
  return ranges;
}

}  // namespace vendlingua
