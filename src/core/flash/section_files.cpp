#include "core/flash/section_files.h"

#include <fmt/format.h>

#include <algorithm>
#include <span>

#include "core/formats/srecord.h"
#include "core/formats/text_lines.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

// The record count also counts three address bytes and the checksum.
constexpr std::int16_t kBytesBesideData = 4;

// What stands behind the first unit of a character, in UTF-8 and, on Windows, in UTF-16.
bool ContinuesCharacter(fs::path::value_type unit) {
  return sizeof unit == 1 ? (static_cast<unsigned>(unit) & 0xC0U) == 0x80
                          : (static_cast<unsigned>(unit) & 0xFC00U) == 0xDC00;
}

}  // namespace

fs::path SectionBase(const fs::path& flash_file) {
  constexpr int kExtensionLength = 4;
  fs::path::string_type text = flash_file.native();
  for (int i = 0; i < kExtensionLength && !text.empty(); ++i) {
    while (text.size() > 1 && ContinuesCharacter(text.back())) {
      text.pop_back();
    }
    text.pop_back();
  }
  return text;
}

std::array<fs::path, 1 + SectionFiles::kSections> SectionFiles::Paths(const fs::path& base) {
  std::array<fs::path, 1 + kSections> paths;
  paths.fill(base);
  paths.front() += ".mtx";
  for (std::size_t s = 0; s < kSections; ++s) {
    paths.at(1 + s) += fmt::format(".SA{}", s);
  }
  return paths;
}

bool SectionFiles::ReadBack(const fs::path& flash_file, std::string_view content, Dialogs& dialogs,
                            const UiText& ui_text) {
  TextLines lines(content);
  while (const auto line = lines.Next()) {
    dialogs.LetPendingEventsRun();
    if (!TakeLine(line->text)) {
      dialogs.MessageBox(
          {MessageIcon::kExclamation,
           fmt::format("{}\r{}", PathText(flash_file), ui_text[UiTextId::kBadFlashLine]),
           ui_text[UiTextId::kErrorTitle]});
      return false;
    }
  }
  TakeOverTexts();
  return true;
}

bool SectionFiles::TakeLine(std::string_view line) {
  if (line.starts_with("S2")) {
    StoreRecord(line);
  }
  return line.starts_with('S');
}

void SectionFiles::TakeOverTexts() {
  for (std::size_t s = 0; s < kSections; ++s) {
    section_text_[s].assign(memory_picture_.data() + kBounds[s], kBounds[s + 1] - kBounds[s]);
  }
}

std::string_view SectionFiles::Text(std::size_t section) const {
  const auto used = static_cast<std::size_t>(section_used_.at(section));
  return std::string_view(section_text_.at(section)).substr(0, used);
}

void SectionFiles::StoreRecord(std::string_view line) {
  const LenientRecord record(line);
  const std::uint32_t address = record.LowAddress();
  if (address >= kBounds.back()) {
    return;
  }
  const auto count = static_cast<std::int16_t>(record.Count() - kBytesBesideData);
  NoteSectionUse(count, static_cast<std::int32_t>(address));
  const auto behind = std::span(memory_picture_).subspan(address);
  const auto data_bytes = static_cast<std::size_t>(std::max<std::int16_t>(count, 0));
  const auto stored_bytes = std::min(behind.size(), data_bytes);
  for (std::size_t i = 0; i < stored_bytes; ++i) {
    behind[i] = static_cast<char>(record.Data(i));
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

std::vector<fs::path> SectionFiles::AddSections(const fs::path& base, StagedFiles& files) const {
  const auto paths = Paths(base);
  files.Add(paths.front(), {});
  std::vector<fs::path> added = {paths.front()};
  for (std::size_t s = 0; s < kSections; ++s) {
    const fs::path& path = paths.at(1 + s);
    const std::string_view text = Text(s);
    if (text.empty()) {
      files.Remove(path);
    } else {
      files.Add(path, {text});
      added.push_back(path);
    }
  }
  return added;
}

std::vector<fs::path> SectionFiles::WriteSections(const fs::path& base) const {
  StagedFiles files;
  std::vector<fs::path> written = AddSections(base, files);
  files.Commit();
  return written;
}

}  // namespace vendlingua
