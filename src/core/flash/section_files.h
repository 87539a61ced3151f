#ifndef VENDLINGUA_CORE_FLASH_SECTION_FILES_H_
#define VENDLINGUA_CORE_FLASH_SECTION_FILES_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform/dialogs.h"
#include "core/platform/staged_files.h"
#include "core/texts/ui_text.h"

namespace vendlingua {

/// The base path of the section files of a flash file: its path without the last four characters
/// (not bytes), which are the extension.
std::filesystem::path SectionBase(const std::filesystem::path& flash_file);

/// The board's 16-bit address space as read back from a flash file, and the raw binary files of its
/// five sections. Lives as long as the program; nothing is cleared between runs.
class SectionFiles {
 public:
  static constexpr std::size_t kSections = 5;
  /// Section s covers the addresses from bound s up to the one before bound s + 1.
  static constexpr std::array<std::uint32_t, kSections + 1> kBounds = {0x0000, 0x8000, 0xA000,
                                                                       0xBC00, 0xBE00, 0xC000};

  /// The files that belong to `base`: `base`.mtx, and `base`.SA0 to .SA4.
  static std::array<std::filesystem::path, 1 + kSections> Paths(const std::filesystem::path& base);

  /// Parses the S2 records of the flash file whose content is given and takes over the section
  /// texts. Records at address
  /// 0xC000 or above (of the low 16 bits) and all other types are passed over, checksums are not
  /// looked at, and what is not hexadecimal counts as 0. False when a line does not begin with "S":
  /// the user is told by the name of the file, and the section texts stay those of the run before.
  bool ReadBack(const std::filesystem::path& flash_file, std::string_view content, Dialogs& dialogs,
                const UiText& ui_text);

  /// The steps of ReadBack(): takes one line, which is false when it does not begin with "S"; takes
  /// the section texts over.
  bool TakeLine(std::string_view line);
  void TakeOverTexts();

  /// The used bytes of section `section`.
  std::string_view Text(std::size_t section) const;

  /// Adds the files of `base`: .mtx, empty, and .SA0 to .SA4 with the used bytes of each section; a
  /// section without any leaves no file. Returns the files added. Throws FileError.
  std::vector<std::filesystem::path> AddSections(const std::filesystem::path& base,
                                                 StagedFiles& files) const;

  /// Writes them by themselves. Returns the files written. Throws FileError.
  std::vector<std::filesystem::path> WriteSections(const std::filesystem::path& base) const;

  /// Notes that a record puts `count` bytes at `address` (below 0xC000). Of a section whose end a
  /// record crosses the last byte is not counted. A record whose own count is too small has a
  /// negative one here: it uses the section up to that many bytes before its address.
  void NoteSectionUse(std::int16_t count, std::int32_t address);

  /// Used length of each section; behind them a sixth counter for what crosses the last bound.
  const std::array<std::int32_t, kSections + 1>& SectionUsed() const { return section_used_; }

 private:
  void StoreRecord(std::string_view line);

  std::array<char, kBounds.back()> memory_picture_{};
  std::array<std::int32_t, kSections + 1> section_used_{};
  std::array<std::string, kSections> section_text_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FLASH_SECTION_FILES_H_
