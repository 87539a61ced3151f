#ifndef VENDLINGUA_CORE_FORMATS_MES_FILE_H_
#define VENDLINGUA_CORE_FORMATS_MES_FILE_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/document/message_set.h"
#include "core/formats/mes_layout.h"

namespace vendlingua {

/// The header fields as they stand in the file.
struct MesHeader {
  std::uint8_t lang_count;
  std::uint8_t last_col;
  std::uint8_t flags;  ///< 4 x display type + 2 x `HeaderBit1` + `HeaderBit0`
  std::uint16_t header_count;
  std::uint16_t last_msg;
  std::uint32_t mem_start;
  std::uint32_t mem_length;

  std::size_t DisplayType() const { return (flags & 12U) / 4; }

  bool operator==(const MesHeader&) const = default;
};

/// Decodes the first 24 bytes of `content`. Throws Error when there are fewer, or when a field is
/// not hexadecimal.
MesHeader ParseMesHeader(std::string_view content);

/// The flags of a header that declares `display_type`. Type 3 is stored as 0: boards in the field
/// expect the file so.
std::uint8_t MesFlags(const MessageSet& set, std::size_t display_type);

/// The 24 bytes of a header with the dimensions of `set` and the given flags. Of `MemLength` only
/// the low 16 bits fit.
std::string FormatMesHeader(const MessageSet& set, std::uint8_t flags);

/// Takes width, flags, `HeaderCount`, `LastMsg` and memory from a header into the set; not
/// `LangCount`, which a ".MSX" file does not declare.
void ApplyDimensions(const MesHeader& header, MessageSet& set);

/// Takes the whole header of a ".MES" file: ApplyDimensions, `LangCount`, and the computed
/// `LangStride` and `BlockLength`. Throws Error when `LangCount` is 0, or when there are more than
/// 513 messages although a block has no room for them, as only a damaged header says.
void ApplyMesHeader(const MesHeader& header, MessageSet& set);

/// The names of blocks 0, 1, 2, ... as captions, up to the end of the file and at most 101.
std::vector<std::string> ReadMesNames(const MessageSet& set, std::string_view content);

/// Messages 0 to `LastMsg` of block `language` of the file whose content is given, one behind the
/// other. Cells behind the end of the file read as blanks: the last block of a file ends with the
/// last message that was saved into it, or wherever a save of it was interrupted.
DisplayCodes MesCells(const MessageSet& set, std::string_view content, int language);

/// The same as texts of a set.
MessageTexts MesTexts(const MessageSet& set, std::string_view content, int language);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_MES_FILE_H_
