#ifndef VENDLINGUA_CORE_FORMATS_FLASH_FILE_H_
#define VENDLINGUA_CORE_FORMATS_FLASH_FILE_H_

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "core/formats/flash_memory.h"

namespace vendlingua {

/// A file of S-records, decoded.
struct FlashFile {
  FlashMemory memory;
  std::array<std::size_t, 10> records{};  ///< how many there are of each type, by its digit
  std::string first_line;                 ///< which may be the header of an identified copy
};

/// Decodes a file of S-records. The data records are its memory, those of other types are counted.
/// Passed over are the checksum of an identified copy's header, the line that ends a copy of nine
/// languages, and empty lines, with which a compiled .MSX file of fewer languages ends. Throws
/// Error, which names the line, when any other line is no sound record or its address is beyond the
/// board's.
FlashFile ParseFlashFile(std::string_view content);

/// The same of a file. Throws FileError when it cannot be read, too.
FlashFile ReadFlashFile(const std::filesystem::path& path);

/// Whether a file begins as one of S-records does. Throws FileError when it cannot be read.
bool BeginsWithRecord(const std::filesystem::path& path);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_FLASH_FILE_H_
