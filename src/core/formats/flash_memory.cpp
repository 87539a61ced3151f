#include "core/formats/flash_memory.h"

#include <fmt/format.h>

#include <algorithm>

#include "core/formats/copy_header.h"
#include "core/formats/srecord.h"
#include "core/formats/text_lines.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

// An S-record file of a whole 16 MiB image has 48 MiB, with lines of one byte 224 MiB.
constexpr std::uint64_t kFlashFileLimit = 256U << 20U;

void PutRecord(std::string_view line, SRecord& record, FlashMemory& memory) {
  ParseSRecord(line, record);
  if (!record.ChecksumIsRight()) {
    throw SRecordSyntaxError(fmt::format("the checksum is {:02X} instead of {:02X}",
                                         record.checksum, SRecordChecksum(record.sum)));
  }
  if (record.type < '1' || record.type > '3') {
    return;
  }
  if (record.address + std::uint64_t{record.size} > FlashMemory::kEnd) {
    throw SRecordSyntaxError(
        fmt::format("address {:X} is beyond the 24 bits of boards", record.address));
  }
  memory.Put(record.address, record.Data());
}

}  // namespace

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

FlashMemory ParseFlashMemory(std::string_view content) {
  FlashMemory memory;
  SRecord record;
  TextLines lines(content);
  bool is_copy = false;
  while (const auto line = lines.Next()) {
    is_copy = is_copy || (lines.count() == 1 && IsCopyHeader(line->text));
    const bool is_known = is_copy && (lines.count() == 1 || line->text == kLastCopyLine);
    try {
      if (!is_known) {
        PutRecord(line->text, record, memory);
      }
    } catch (const SRecordSyntaxError& error) {
      throw Error(UiTextId::kAtLine, lines.count(), UiSentence::Verbatim(error.what()));
    }
  }
  return memory;
}

FlashMemory ReadFlashMemory(const std::filesystem::path& path) {
  return NamingFile(path, [&] { return ParseFlashMemory(ReadFile(path, kFlashFileLimit)); });
}

}  // namespace vendlingua
