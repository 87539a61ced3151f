#ifndef VENDLINGUA_CORE_FORMATS_SRECORD_H_
#define VENDLINGUA_CORE_FORMATS_SRECORD_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "core/formats/hex.h"

namespace vendlingua {

/// The line end of every S-record file.
inline constexpr std::string_view kCrLf = "\r\n";

/// What a file of S-records may at most hold to be checked: one of a 16 MiB image has 48 MiB.
inline constexpr std::uint64_t kSRecordFileLimit = 1U << 30U;

/// Data records of the flash files.
enum class SRecordType : char { kS1 = '1', kS2 = '2' };

/// S1 (16-bit addresses) for a memory that starts at 0xFFFF or below, S2 (24-bit) for any other.
/// The start alone decides.
SRecordType SRecordTypeFor(std::uint32_t start);

/// The checksum of a data record: the ones' complement of the low byte of the sum of its count,
/// address and data bytes.
constexpr std::uint8_t SRecordChecksum(std::uint32_t sum) {
  return static_cast<std::uint8_t>(~sum & 0xFFU);
}

/// The sum of the bytes that `text` spells as pairs of hexadecimal digits; a pair that is not
/// hexadecimal counts as 0.
std::uint32_t SumOfHexPairs(std::string_view text);

/// A memory image as data records of 16 bytes, the last one shorter where the length asks for it,
/// each ended by CR LF. The first byte has the address `start`. Addresses are written as they come,
/// without padding: an S1 file that passes 0xFFFF gets five digits.
std::string FormatSRecords(std::span<const std::uint8_t> image, std::uint32_t start,
                           SRecordType type, std::size_t address_digits = 1);

/// Why a line is no sound S-record.
class SRecordSyntaxError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// One record, decoded.
struct SRecord {
  char type = '0';  ///< '0' to '9'
  std::uint32_t address = 0;
  std::array<std::uint8_t, 255> bytes{};  ///< address, data and checksum
  std::size_t address_size = 0;           ///< bytes of the address
  std::size_t size = 0;                   ///< data bytes
  std::uint8_t checksum = 0;              ///< as written
  std::uint8_t sum = 0;                   ///< low byte of the sum of count, address and data

  std::span<const std::uint8_t> Data() const {
    return std::span(bytes).subspan(address_size, size);
  }
  bool ChecksumIsRight() const { return checksum == SRecordChecksum(sum); }
};

/// Decodes one line into `record`, which is reused from line to line. Throws SRecordSyntaxError
/// when it is no S-record or its length is not what its count says; a wrong checksum is not an
/// error here.
void ParseSRecord(std::string_view line, SRecord& record);

/// A line taken as an S2 record, whatever it holds: nothing is checked, what stands behind its end
/// is missing, and a pair that is not hexadecimal counts as 0. Columns are counted from 1.
class LenientRecord {
 public:
  static constexpr std::size_t kCountColumn = 3;
  static constexpr std::size_t kLowAddressColumn = 7;
  static constexpr std::size_t kDataColumn = 11;

  explicit LenientRecord(std::string_view line) : line_(line) {}

  /// Type, count and address as they stand: the first 10 characters.
  std::string_view Head() const { return line_.substr(0, kDataColumn - 1); }

  std::uint8_t Count() const { return HexPairOrZero(line_, kCountColumn); }

  /// The low 16 bits of the address; 0 when one of their four digits is not hexadecimal.
  std::uint32_t LowAddress() const { return HexOrZero(Columns(line_, kLowAddressColumn, 4)); }

  /// Data byte `index`, counted from 0.
  std::uint8_t Data(std::size_t index) const {
    return HexPairOrZero(line_, kDataColumn + 2 * index);
  }

  /// The characters of the first `bytes` data bytes as they stand.
  std::string_view DataDigits(std::size_t bytes) const {
    return Columns(line_, kDataColumn, 2 * bytes);
  }

 private:
  std::string_view line_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_SRECORD_H_
