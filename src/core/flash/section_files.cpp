#include "core/flash/section_files.h"

#include <algorithm>
#include <span>

#include "core/formats/hex.h"
#include "core/formats/text_lines.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kCountColumn = 3;
constexpr std::size_t kLowAddressColumn = 7;
constexpr std::size_t kDataColumn = 11;
// The record count also counts three address bytes and the checksum.
constexpr std::int16_t kBytesBesideData = 4;

fs::path WithSuffix(fs::path base, const std::string& suffix) {
  base += suffix;
  return base;
}

}  // namespace

fs::path SectionBase(const fs::path& flash_file) {
  constexpr std::size_t kExtensionLength = 4;
  fs::path::string_type text = flash_file.native();
  text.resize(text.size() - std::min(text.size(), kExtensionLength));
  return text;
}

bool SectionFiles::ReadBack(const fs::path& flash_file, Dialogs& dialogs, const UiText& ui_text) {
  const std::string content = ReadFile(flash_file);
  TextLines lines(content);
  while (const auto line = lines.Next()) {
    dialogs.LetPendingEventsRun();
    if (!line->text.starts_with('S')) {
      dialogs.MessageBox(
          {MessageIcon::kExclamation, PathText(flash_file) + "\r" + ui_text[38], ui_text[29]});
      return false;
    }
    if (line->HasLoneCarriageReturn()) {
      throw FileError(flash_file, "line " + std::to_string(lines.count()) +
                                      " holds a carriage return that does not end it");
    }
    if (line->text.starts_with("S2")) {
      StoreRecord(line->text);
    }
  }
  for (std::size_t s = 0; s < kSections; ++s) {
    section_text_[s].assign(memory_picture_.data() + kBounds[s], kBounds[s + 1] - kBounds[s]);
  }
  return true;
}

void SectionFiles::StoreRecord(std::string_view line) {
  const std::uint32_t address = HexOrZero(Columns(line, kLowAddressColumn, 4));
  const auto record_count = static_cast<std::int16_t>(HexPairOrZero(line, kCountColumn));
  const auto count = static_cast<std::int16_t>(record_count - kBytesBesideData);
  if (address >= kBounds.back() || count < 0) {
    return;
  }
  NoteSectionUse(count, static_cast<std::int32_t>(address));
  const auto behind = std::span(memory_picture_).subspan(address);
  std::size_t column = kDataColumn;
  const auto stored_bytes = std::min(behind.size(), static_cast<std::size_t>(count));
  for (char& stored : behind.first(stored_bytes)) {
    stored = static_cast<char>(HexPairOrZero(line, column));
    column += 2;
  }
}

void SectionFiles::NoteSectionUse(std::int16_t count, std::int32_t address) {
  const auto bound = [](std::size_t s) { return static_cast<std::int32_t>(kBounds[s]); };
  const auto raise = [this](std::size_t s, std::int32_t used) {
    section_used_.at(s) = std::max(section_used_.at(s), used);
  };
  std::size_t s = 0;
  while (s + 1 < kSections && address >= bound(s + 1)) {
    ++s;
  }
  const std::int32_t end = address + count;
  if (end > bound(s + 1)) {
    section_used_.at(s) = bound(s + 1) - bound(s) - 1;
    raise(s + 1, end - bound(s + 1));
  } else {
    raise(s, end - bound(s));
  }
}

std::vector<fs::path> SectionFiles::WriteSections(const fs::path& base) const {
  std::vector<fs::path> written;
  const auto write = [&written](const fs::path& path, std::string_view content) {
    WriteFile(path, content);
    written.push_back(path);
  };
  write(WithSuffix(base, ".mtx"), "");
  for (std::size_t s = 0; s < kSections; ++s) {
    const fs::path path = WithSuffix(base, ".SA" + std::to_string(s));
    const std::string used = section_text_[s].substr(0, static_cast<std::size_t>(section_used_[s]));
    if (used.empty()) {
      // Created before it is removed, so that a path that cannot be written is an error either way.
      WriteFile(path, used);
      fs::remove(path);
    } else {
      write(path, used);
    }
  }
  return written;
}

}  // namespace vendlingua
