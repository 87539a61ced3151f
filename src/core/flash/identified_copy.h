#ifndef VENDLINGUA_CORE_FLASH_IDENTIFIED_COPY_H_
#define VENDLINGUA_CORE_FLASH_IDENTIFIED_COPY_H_

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vendlingua {

/// The hexadecimal digits of the identification characters of a nine-language copy, made of the
/// first record line of its flash file: what follows the first byte 0x50 ("P") on a pair boundary.
/// There may be fewer than six characters, or none.
std::string_view IdentificationDigits(std::string_view first_record);

/// The header record of a nine-language copy, with these identification characters. The checksum is
/// not padded to two digits.
std::string HeaderFromFirstRecord(std::string_view first_record);

/// The header record of any other copy: the identification characters come from the name of the
/// flash file, characters 3 to 8 of `base_name` (UTF-8), model and version ("FW0267AB" gives
/// "0267AB"); the others may be any. On boards of model 0267 with a version that begins with A the
/// second version letter steps back in the cycle A, B, C, D. Nothing when the model is not four
/// decimal digits, when the name is too short, or when a version character has no display code.
std::optional<std::string> HeaderFromBaseName(std::string_view base_name);

/// Where the identified copy of a flash file goes, cut out of the path of that file.
struct CopyName {
  std::string base_name;  ///< UTF-8
  std::string extension;  ///< ".MSX" for ".MHX" files, ".HSX" for ".hex" files
};

/// Nothing when the path holds neither ".MHX" nor ".HEX", in any case.
std::optional<CopyName> CopyNameFor(const std::filesystem::path& flash_file);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FLASH_IDENTIFIED_COPY_H_
