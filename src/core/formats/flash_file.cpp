#include "core/formats/flash_file.h"

#include <fmt/format.h>

#include <cstdint>

#include "core/formats/copy_header.h"
#include "core/formats/hex.h"
#include "core/formats/srecord.h"
#include "core/formats/text_lines.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

// An S-record file of a whole 16 MiB image has 48 MiB, with lines of one byte 224 MiB.
constexpr std::uint64_t kFlashFileLimit = 256U << 20U;

class FlashFileParser {
 public:
  FlashFile Parse(std::string_view content) {
    TextLines lines(content);
    while (const auto line = lines.Next()) {
      try {
        Take(line->text, lines.count());
      } catch (const SRecordSyntaxError& error) {
        throw Error(UiTextId::kAtLine, lines.count(), UiSentence::Verbatim(error.what()));
      }
    }
    return std::move(file_);
  }

 private:
  void Take(std::string_view line, std::size_t number) {
    if (number == 1) {
      file_.first_line = line;
      is_copy_ = IsCopyHeader(line);
    }
    if (is_copy_ && number == 1) {
      ++file_.records.front();
    } else if (!line.empty() && !(is_copy_ && line == kLastCopyLine)) {
      TakeRecord(line);
    }
  }

  void TakeRecord(std::string_view line) {
    ParseSRecord(line, record_);
    ++file_.records.at(static_cast<std::size_t>(record_.type - '0'));
    if (!record_.ChecksumIsRight()) {
      throw SRecordSyntaxError(fmt::format("the checksum is {:02X} instead of {:02X}",
                                           record_.checksum, SRecordChecksum(record_.sum)));
    }
    if (record_.type < '1' || record_.type > '3') {
      return;
    }
    if (record_.address + std::uint64_t{record_.size} > FlashMemory::kEnd) {
      throw SRecordSyntaxError(
          fmt::format("address {} is beyond the 24 bits of boards", AddressText(record_.address)));
    }
    file_.memory.Put(record_.address, record_.Data());
  }

  FlashFile file_;
  SRecord record_;
  bool is_copy_ = false;
};

}  // namespace

FlashFile ParseFlashFile(std::string_view content) { return FlashFileParser().Parse(content); }

FlashFile ReadFlashFile(const std::filesystem::path& path) {
  return NamingFile(path, [&] { return ParseFlashFile(ReadFile(path, kFlashFileLimit)); });
}

bool BeginsWithRecord(const std::filesystem::path& path) {
  return ReadFile(path, kFlashFileLimit).starts_with('S');
}

}  // namespace vendlingua
