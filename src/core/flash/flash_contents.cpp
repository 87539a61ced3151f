#include "core/flash/flash_contents.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "core/flash/identified_copy.h"
#include "core/formats/board_place.h"
#include "core/formats/copy_header.h"
#include "core/formats/hex.h"
#include "core/formats/message_file.h"
#include "core/formats/msx_file.h"

namespace vendlingua {
namespace {

constexpr std::size_t kModelCharacters = kModelHexDigits / 2;

bool IsModel(std::span<const DisplayCode> codes) {
  return std::all_of(codes.begin(), codes.end(),
                     [](DisplayCode code) { return code >= '0' && code <= '9'; });
}

// The message that shows a language's own name. Where the compiler lists the languages, each slot
// has the names of all from that message on.
std::size_t NameMessageOf(const MessageSet& set, std::size_t slot) {
  const auto first = static_cast<std::size_t>(set.NameMessage());
  return set.HeaderBit0 == kFalse ? first + slot : first;
}

// The name of the language in a slot; empty where the file does not hold all of it. 0 stands for
// what a language lacks.
DisplayCodes NameIn(const FlashMemory& memory, const MessageSet& set, std::size_t slot) {
  const std::size_t message = NameMessageOf(set, slot);
  if ((message + 1) * set.Width() > set.SlotLength()) {
    return {};
  }
  const std::uint32_t address = AddressOf(set, slot, message);
  DisplayCodes cells;
  for (std::size_t i = 0; i < set.Width(); ++i) {
    const auto code = memory.At(static_cast<std::uint32_t>(address + i));
    if (code.value_or(0) == 0) {
      return {};
    }
    cells.push_back(*code);
  }
  const auto name = Trim(cells);
  return {name.begin(), name.end()};
}

}  // namespace

bool IsIdentifiedCopy(const FlashFile& file) { return IsCopyHeader(file.first_line); }

std::optional<DisplayCodes> Identification(const FlashFile& file) {
  const std::string_view digits =
      IsIdentifiedCopy(file)
          ? Columns(file.first_line, kIdentificationColumn, kIdentificationDigits)
          : IdentificationDigits(file.first_line);
  DisplayCodes codes = DecodeHexPairs(digits).bytes;
  const bool is_whole = codes.size() == kIdentificationDigits / 2;
  return is_whole && IsModel(std::span(codes).first(kModelCharacters))
             ? std::optional(std::move(codes))
             : std::nullopt;
}

std::vector<AddressRange> GapsBetween(const std::vector<AddressRange>& ranges) {
  std::vector<AddressRange> gaps;
  for (std::size_t i = 1; i < ranges.size(); ++i) {
    const std::uint32_t first = ranges[i - 1].End();
    gaps.push_back({first, ranges[i].first - first});
  }
  return gaps;
}

std::optional<MessageSet> KnownDimensions(const FlashFile& file) {
  const auto identification = Identification(file);
  if (!identification ||
      !IsManagedModel(BytesFromCodes(std::span(*identification).first(kModelCharacters)))) {
    return std::nullopt;
  }
  MessageSet set;
  TakeMsxDimensions(set);
  const std::vector<AddressRange> ranges = file.memory.Ranges();
  const bool is_that_memory = !ranges.empty() && ranges.front().first == set.MemStart &&
                              ranges.back().End() <= set.MemStart + set.MemLength;
  return is_that_memory ? std::optional(std::move(set)) : std::nullopt;
}

std::vector<FlashSlot> SlotsOf(const FlashMemory& memory, const MessageSet& set) {
  const std::vector<AddressRange> ranges = memory.Ranges();
  const auto length = static_cast<std::uint32_t>(set.SlotLength());
  std::vector<FlashSlot> slots;
  for (std::size_t slot = 0; slot < set.SlotCount(); ++slot) {
    const std::uint64_t first = set.MemStart + std::uint64_t{slot} * length;
    if (first + length > FlashMemory::kEnd) {
      break;
    }
    const bool is_held = std::any_of(ranges.begin(), ranges.end(), [&](const AddressRange& range) {
      return range.first < first + length && first < range.End();
    });
    slots.push_back(
        {static_cast<std::uint32_t>(first), length, is_held, NameIn(memory, set, slot)});
  }
  return slots;
}

}  // namespace vendlingua
