#include "core/flash/companion_check.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <string_view>
#include <system_error>
#include <utility>

#include "core/flash/identified_copy.h"
#include "core/flash/section_files.h"
#include "core/formats/copy_header.h"
#include "core/formats/mes_file.h"
#include "core/formats/srecord.h"
#include "core/formats/text_lines.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"
#include "core/texts/ascii_case.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

bool IsThere(const fs::path& path) {
  std::error_code not_there;
  return fs::is_regular_file(path, not_there);
}

class CompanionChecker {
 public:
  explicit CompanionChecker(const fs::path& flash_file)
      : flash_file_(flash_file), content_(ReadFile(flash_file, kSRecordFileLimit)) {}

  std::vector<std::string> Check() {
    if (UpperCase(PathText(flash_file_.extension())) == ".MHX") {
      CheckSections();
    }
    CheckCopy();
    CheckMessageFile();
    return std::move(findings_);
  }

 private:
  void Report(const fs::path& companion, std::string_view what) {
    findings_.push_back(fmt::format("{} {}", PathText(companion.filename()), what));
  }

  void CheckSections() {
    const auto paths = SectionFiles::Paths(SectionBase(flash_file_));
    if (std::none_of(paths.begin(), paths.end(), IsThere)) {
      return;
    }
    const auto sections = std::make_unique<SectionFiles>();
    TextLines lines(content_);
    while (const auto line = lines.Next()) {
      sections->TakeLine(line->text);
    }
    sections->TakeOverTexts();
    CheckSection(paths.front(), "", true);
    for (std::size_t s = 0; s < SectionFiles::kSections; ++s) {
      const std::string_view text = sections->Text(s);
      CheckSection(paths.at(1 + s), text, !text.empty());
    }
  }

  void CheckSection(const fs::path& path, std::string_view text, bool has_file) {
    if (!IsThere(path)) {
      if (has_file) {
        Report(path, "is missing");
      }
    } else if (ReadFile(path) != text) {
      Report(path, fmt::format("does not belong to it, which has {} bytes for it", text.size()));
    }
  }

  // The copy has the records of the flash file behind a header of its own.
  void CheckCopy() {
    const auto name = CopyNameFor(flash_file_);
    const std::string file_name = name ? name->base_name + name->extension : "";
    const fs::path path =
        flash_file_.parent_path() / std::u8string(file_name.begin(), file_name.end());
    if (!name || !IsThere(path)) {
      return;
    }
    const std::string copy = ReadFile(path, kSRecordFileLimit);
    TextLines lines(copy);
    const auto header = lines.Next();
    if (!header || !IsCopyHeader(header->text)) {
      return;
    }
    std::string_view records = copy;
    records.remove_prefix(std::min(records.size(), header->text.size() + kCrLf.size()));
    const std::string last_line = std::string(kLastCopyLine) + std::string(kCrLf);
    if (records.ends_with(last_line)) {
      records.remove_suffix(last_line.size());
    }
    if (records != content_) {
      Report(path, "is no copy of it");
    }
  }

  void CheckMessageFile() {
    fs::path path = flash_file_;
    path.replace_extension(".MES");
    if (!IsThere(path)) {
      return;
    }
    try {
      const MesHeader header = ParseMesHeader(ReadFile(path));
      const auto [start, size] = DataRange();
      // The header holds the low 16 bits of the length alone.
      constexpr std::uint32_t kLengthBits = 0xFFFF;
      if (start != header.mem_start || (size & kLengthBits) != header.mem_length) {
        Report(path, fmt::format("declares {} bytes from address {:X} on, it has {} from {:X} on",
                                 header.mem_length, header.mem_start, size, start));
      }
    } catch (const Error&) {
      // Somebody's source, or another file that is checked by itself.
    }
  }

  // First address and number of bytes of the data records.
  std::pair<std::uint32_t, std::uint32_t> DataRange() const {
    std::uint32_t start = std::numeric_limits<std::uint32_t>::max();
    std::uint32_t size = 0;
    SRecord record;
    TextLines lines(content_);
    while (const auto line = lines.Next()) {
      ParseSRecord(line->text, record);
      if (record.type >= '1' && record.type <= '3') {
        start = std::min(start, record.address);
        size += static_cast<std::uint32_t>(record.size);
      }
    }
    return {start, size};
  }

  fs::path flash_file_;
  std::string content_;
  std::vector<std::string> findings_;
};

}  // namespace

bool IsFlashFile(const fs::path& path) {
  const std::string extension = UpperCase(PathText(path.extension()));
  return extension == ".MHX" || extension == ".HEX";
}

std::vector<std::string> CheckCompanions(const fs::path& flash_file) {
  return CompanionChecker(flash_file).Check();
}

}  // namespace vendlingua
