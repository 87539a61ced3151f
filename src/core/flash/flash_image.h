#ifndef VENDLINGUA_CORE_FLASH_FLASH_IMAGE_H_
#define VENDLINGUA_CORE_FLASH_FLASH_IMAGE_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "core/document/message_set.h"
#include "core/texts/ui_text_id.h"

namespace vendlingua {

/// The board's message memory as it is being compiled: `MemLength` bytes that start at `MemStart`,
/// divided into `LangCount` slots of equal length. It outlives a run: bytes that no language writes
/// keep what an earlier run of the same file left there.
class FlashImage {
 public:
  /// Makes the image anew, filled with 0, when another file was opened since the last call.
  void MatchTo(const MessageSet& set);

  /// Packs the ticked languages (entry numbers, ascending), read from the content of the ".MES"
  /// file, into slots 0, 1, 2, ... A placeholder becomes a blank, and 0 stands for what a language
  /// lacks that ends before its last message: those languages are returned. Throws Error when a
  /// message would lie outside the image or when the file does not hold the block of a language.
  std::vector<int> Pack(const MessageSet& set, std::string_view mes_content,
                        std::span<const int> languages);

  /// Writes the list of all languages' names over messages `HeaderCount` and following of every
  /// slot, for a firmware that does not list the languages itself. Throws Error when there are more
  /// than 20 slots or a name would lie outside the image.
  void WriteLanguageNames(const MessageSet& set);

  std::span<const std::uint8_t> Bytes() const { return bytes_; }

 private:
  void RequireInside(std::size_t end, UiTextId id) const;

  std::vector<std::uint8_t> bytes_;
  std::optional<std::uint32_t> opened_files_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FLASH_FLASH_IMAGE_H_
