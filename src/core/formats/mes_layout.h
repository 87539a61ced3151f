#ifndef VENDLINGUA_CORE_FORMATS_MES_LAYOUT_H_
#define VENDLINGUA_CORE_FORMATS_MES_LAYOUT_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/document/message_set.h"

// The layout of ".MES" files: a header of 24 bytes, then language blocks of `BlockLength` bytes,
// each a name of 20 bytes (NameField) and `LangStride` + 1 message slots of `LastCol` + 1 bytes.
// Block 0 is the reference block "Default". Positions are counted from 0.

namespace vendlingua {

inline constexpr std::size_t kMesHeaderBytes = 24;
/// From this value on the first byte of a file says that it is an assembler source.
inline constexpr std::uint8_t kFirstSourceByte = 32;

/// `LangCount` and `LastCol` are raw bytes.
inline constexpr std::size_t kMesLangCountOffset = 0;
inline constexpr std::size_t kMesLastColOffset = 1;

/// A field of the header that is written in hexadecimal digits.
struct MesField {
  std::string_view name;
  std::size_t offset;
  std::size_t digits;
};
inline constexpr MesField kMesFlags{"flags", 2, 2};
inline constexpr MesField kMesHeaderCount{"HeaderCount", 4, 4};
inline constexpr MesField kMesLastMsg{"LastMsg", 8, 4};
inline constexpr MesField kMesMemStart{"MemStart", 12, 8};
inline constexpr MesField kMesMemLength{"MemLength", 20, 4};

/// Display types below this one can be stored.
inline constexpr std::size_t kStoredDisplayTypes = 3;

/// The name of block 0.
inline constexpr std::string_view kReferenceName = "Default";

/// Where block `language` begins. Throws Error when a `BlockLength` that wrapped puts it before the
/// start of the file.
std::int64_t MesBlockOffset(const MessageSet& set, int language);

/// Where message `message` of block `language` begins.
std::int64_t MesMessageOffset(const MessageSet& set, int language, std::size_t message);

/// Whether `BlockLength` wrapped: a block is shorter than its name and message slots, and language
/// blocks overlap.
bool MesBlocksOverlap(const MessageSet& set);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_MES_LAYOUT_H_
