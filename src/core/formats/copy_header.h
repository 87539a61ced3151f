#ifndef VENDLINGUA_CORE_FORMATS_COPY_HEADER_H_
#define VENDLINGUA_CORE_FORMATS_COPY_HEADER_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vendlingua {

/// Where the hexadecimal digits of the six identification characters of an identified copy begin,
/// counted from 1, and how many there are. The first eight digits are the firmware model.
inline constexpr std::size_t kIdentificationColumn = 13;
inline constexpr std::size_t kIdentificationDigits = 12;
inline constexpr std::size_t kModelHexDigits = 8;

/// The line that ends a nine-language copy. Its data field holds 31 digits where its count calls
/// for 32; loaders in the field know the line as it is.
inline constexpr std::string_view kLastCopyLine = "S214FFFFF00FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFC";

/// The header record of an identified copy: an S0 record with the data "DT", six identification
/// characters, given as hexadecimal digits, and eight blanks.
std::string CopyHeader(std::string_view identification, std::string_view checksum);

/// Its checksum: the plain low byte of the sum of the data, not the complement that other records
/// carry, and without count and address.
std::uint8_t CopyHeaderChecksum(std::string_view identification);

/// Whether `line` is a sound header of an identified copy; a checksum below 0x10 may have one
/// digit.
bool IsCopyHeader(std::string_view line);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_COPY_HEADER_H_
