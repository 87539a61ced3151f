#include "core/formats/copy_header.h"

#include "core/formats/hex.h"
#include "core/formats/srecord.h"

namespace vendlingua {
namespace {

constexpr std::string_view kHeaderStart = "S01300004454";  // count 0x13, address 0, "DT"
static_assert(kHeaderStart.size() + 1 == kIdentificationColumn);
constexpr std::string_view kEightBlanks = "2020202020202020";

}  // namespace

std::string CopyHeader(std::string_view identification, std::string_view checksum) {
  std::string header(kHeaderStart);
  return header.append(identification).append(kEightBlanks).append(checksum);
}

std::uint8_t CopyHeaderChecksum(std::string_view identification) {
  constexpr std::uint32_t kFixedSum = 'D' + 'T' + 8 * ' ';
  return static_cast<std::uint8_t>(kFixedSum + SumOfHexPairs(identification));
}

bool IsCopyHeader(std::string_view line) {
  const std::string_view identification =
      Columns(line, kIdentificationColumn, kIdentificationDigits);
  const std::uint8_t checksum = CopyHeaderChecksum(identification);
  return identification.size() == kIdentificationDigits &&
         (line == CopyHeader(identification, HexField(checksum, 2)) ||
          line == CopyHeader(identification, Hex(checksum)));
}

}  // namespace vendlingua
