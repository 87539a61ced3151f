#include "msgfiles/srecord.h"

#include <algorithm>

#include "msgfiles/hex.h"

namespace vendlingua {
namespace {

constexpr std::size_t kBytesPerRecord = 16;
// "S2", count, 6 digits of address, data, checksum, CR LF.
constexpr std::size_t kUsualLineLength = 2 + 2 + 6 + 2 * kBytesPerRecord + 2 + 2;

constexpr std::size_t AddressBytes(SRecordType type) { return type == SRecordType::kS1 ? 2 : 3; }

// The bytes of an address as the board's loader sums them: read back from its digits, the first
// pair, the last pair and, in S2 records, the pair between. An address without padding may have
// fewer digits or more.
std::uint32_t AddressSum(std::string_view digits, SRecordType type) {
  const std::size_t last = digits.size() < 2 ? 0 : digits.size() - 2;
  std::uint32_t sum = HexOrZero(digits.substr(0, 2)) + HexOrZero(digits.substr(last));
  if (type == SRecordType::kS2) {
    sum += HexOrZero(Columns(digits, 3, 2));
  }
  return sum;
}

void AppendRecord(std::string& out, SRecordType type, std::uint64_t address,
                  std::span<const std::uint8_t> data) {
  const auto count = static_cast<std::uint8_t>(AddressBytes(type) + 1 + data.size());
  const std::string address_digits = Hex(address);
  out.push_back('S');
  out.push_back(static_cast<char>(type));
  AppendHexByte(out, count);
  out += address_digits;
  std::uint32_t sum = count + AddressSum(address_digits, type);
  for (const std::uint8_t byte : data) {
    AppendHexByte(out, byte);
    sum += byte;
  }
  AppendHexByte(out, SRecordChecksum(sum));
  out += kCrLf;
}

}  // namespace

SRecordType SRecordTypeFor(std::uint32_t start) {
  return start <= 0xFFFF ? SRecordType::kS1 : SRecordType::kS2;
}

std::uint32_t SumOfHexPairs(std::string_view text) {
  std::uint32_t sum = 0;
  for (std::size_t i = 0; i < text.size(); i += 2) {
    sum += HexOrZero(text.substr(i, 2));
  }
  return sum;
}

std::string FormatSRecords(std::span<const std::uint8_t> image, std::uint32_t start,
                           SRecordType type) {
  std::string lines;
  lines.reserve((image.size() / kBytesPerRecord + 1) * kUsualLineLength);
  for (std::size_t i = 0; i < image.size(); i += kBytesPerRecord) {
    AppendRecord(lines, type, std::uint64_t{start} + i,
                 image.subspan(i, std::min(kBytesPerRecord, image.size() - i)));
  }
  return lines;
}

void ParseSRecord(std::string_view line, SRecord& record) {
  if (line.size() < 2 || line[0] != 'S' || line[1] < '0' || line[1] > '9') {
    throw SRecordSyntaxError("does not begin with S and a digit");
  }
  // Bytes of address by record type; there is no S4 record.
  constexpr std::array<std::size_t, 10> kAddressBytes = {2, 2, 3, 4, 0, 2, 3, 4, 3, 2};
  record.type = line[1];
  const std::size_t address_bytes = kAddressBytes[static_cast<std::size_t>(line[1] - '0')];
  if (address_bytes == 0) {
    throw SRecordSyntaxError("is an S4 record, which is not defined");
  }
  const auto byte_at = [line](std::size_t i) {
    const auto value = ParseHex(Columns(line, i + 1, 2));
    if (!value) {
      throw SRecordSyntaxError("column " + std::to_string(i + 1) + ": \"" +
                               std::string(Columns(line, i + 1, 2)) +
                               "\" is not a hexadecimal pair");
    }
    return static_cast<std::uint8_t>(*value);
  };
  const std::uint8_t count = line.size() >= 4 ? byte_at(2) : std::uint8_t{0};
  if (count < address_bytes + 1 || line.size() != 4 + 2 * std::size_t{count}) {
    throw SRecordSyntaxError("the count is " + std::to_string(count) + ", but the line holds " +
                             std::to_string(line.size() < 4 ? 0 : (line.size() - 4) / 2) +
                             " bytes" + (line.size() % 2 != 0 ? " and a half" : ""));
  }
  std::uint32_t sum = count;
  record.address = 0;
  std::size_t column = 4;
  for (std::size_t i = 0; i < address_bytes; ++i, column += 2) {
    const std::uint8_t byte = byte_at(column);
    record.address = (record.address << 8U) | byte;
    sum += byte;
  }
  record.size = count - address_bytes - 1;
  for (std::size_t i = 0; i < record.size; ++i, column += 2) {
    const std::uint8_t byte = byte_at(column);
    record.buffer[i] = byte;
    sum += byte;
  }
  record.checksum = byte_at(column);
  record.sum = static_cast<std::uint8_t>(sum);
}

}  // namespace vendlingua
