#include "msgfiles/srecord.h"

#include <algorithm>

#include "msgfiles/hex.h"

namespace vendlingua {
namespace {

constexpr std::size_t kBytesPerRecord = 16;
// "S2", count, address, data, checksum, CR LF: usually with 6 digits of address, at most with 16.
constexpr std::size_t kUsualLineLength = 2 + 2 + 6 + 2 * kBytesPerRecord + 2 + 2;
constexpr std::size_t kLongestLine = kUsualLineLength - 6 + 16;

constexpr std::size_t AddressBytes(SRecordType type) { return type == SRecordType::kS1 ? 2 : 3; }

std::uint32_t ValueOf(std::string_view hex_digits) {
  std::uint32_t value = 0;
  for (const char digit : hex_digits) {
    value = (value << 4U) | kHexDigitValues[static_cast<unsigned char>(digit)];
  }
  return value;
}

// The bytes of an address as the board's loader sums them: read back from its digits, the first
// pair, the last pair and, in S2 records, the pair between. An address without padding may have
// fewer digits or more.
std::uint32_t AddressSum(std::string_view digits, SRecordType type) {
  const std::size_t last = digits.size() < 2 ? 0 : digits.size() - 2;
  std::uint32_t sum = ValueOf(digits.substr(0, 2)) + ValueOf(digits.substr(last));
  if (type == SRecordType::kS2 && digits.size() > 2) {
    sum += ValueOf(digits.substr(2, 2));
  }
  return sum;
}

char* PutText(char* at, std::string_view text) { return std::copy(text.begin(), text.end(), at); }

char* PutByte(char* at, std::uint8_t byte) {
  const HexPair& digits = kHexPairs[byte];
  return std::copy(digits.begin(), digits.end(), at);
}

void AppendRecord(std::string& out, SRecordType type, std::string_view address,
                  std::span<const std::uint8_t> data) {
  const auto count = static_cast<std::uint8_t>(AddressBytes(type) + 1 + data.size());
  std::uint32_t sum = count + AddressSum(address, type);
  std::array<char, kLongestLine> line;
  char* end = PutText(line.data(), type == SRecordType::kS1 ? "S1" : "S2");
  end = PutByte(end, count);
  end = PutText(end, address);
  for (const std::uint8_t byte : data) {
    end = PutByte(end, byte);
    sum += byte;
  }
  end = PutByte(end, SRecordChecksum(sum));
  end = PutText(end, kCrLf);
  out.append(line.data(), end);
}

// Bytes of address by record type; there is no S4 record.
std::size_t AddressBytesOf(char type) {
  constexpr std::array<std::size_t, 10> kAddressBytes = {2, 2, 3, 4, 0, 2, 3, 4, 3, 2};
  const std::size_t bytes = kAddressBytes[static_cast<std::size_t>(type - '0')];
  if (bytes == 0) {
    throw SRecordSyntaxError("is an S4 record, which is not defined");
  }
  return bytes;
}

[[noreturn]] void ThrowForCount(std::string_view line, std::size_t count) {
  throw SRecordSyntaxError("the count is " + std::to_string(count) + ", but the line holds " +
                           std::to_string(line.size() < 4 ? 0 : (line.size() - 4) / 2) + " bytes" +
                           (line.size() % 2 != 0 ? " and a half" : ""));
}

[[noreturn]] void ThrowForDigits(std::string_view line) {
  std::size_t pair = 2;
  while (pair < line.size() && ParseHex(line.substr(pair, 1)) &&
         ParseHex(line.substr(pair + 1, 1))) {
    pair += 2;
  }
  throw SRecordSyntaxError("column " + std::to_string(pair + 1) + ": \"" +
                           std::string(Columns(line, pair + 1, 2)) + "\" is no hexadecimal pair");
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
                           SRecordType type, std::size_t address_digits) {
  std::string lines;
  lines.reserve((image.size() / kBytesPerRecord + 1) * kUsualLineLength);
  for (std::size_t i = 0; i < image.size(); i += kBytesPerRecord) {
    const std::string address = Hex(std::uint64_t{start} + i, address_digits);
    AppendRecord(lines, type, address,
                 image.subspan(i, std::min(kBytesPerRecord, image.size() - i)));
  }
  return lines;
}

void ParseSRecord(std::string_view line, SRecord& record) {
  if (line.size() < 2 || line[0] != 'S' || line[1] < '0' || line[1] > '9') {
    throw SRecordSyntaxError("does not begin with S and a digit");
  }
  record.type = line[1];
  const std::size_t address_bytes = AddressBytesOf(record.type);

  // Digits that are none leave their mark here and are looked for when all have been read.
  std::uint32_t marks = 0;
  std::uint32_t sum = 0;
  std::size_t column = 2;
  const auto next_byte = [&] {
    const std::uint32_t high = kHexDigitValues[static_cast<unsigned char>(line[column])];
    const std::uint32_t low = kHexDigitValues[static_cast<unsigned char>(line[column + 1])];
    column += 2;
    marks |= high | low;
    const std::uint32_t byte = ((high << 4U) | low) & 0xFFU;
    sum += byte;
    return static_cast<std::uint8_t>(byte);
  };
  const std::size_t count = line.size() >= 4 ? next_byte() : 0;
  if (marks < kNoHexDigit && (count < address_bytes + 1 || line.size() != 4 + 2 * count)) {
    ThrowForCount(line, count);
  }
  if (marks >= kNoHexDigit) {
    ThrowForDigits(line);
  }
  record.address = 0;
  for (std::size_t i = 0; i < address_bytes; ++i) {
    record.address = (record.address << 8U) | next_byte();
  }
  record.size = count - address_bytes - 1;
  for (std::size_t i = 0; i < record.size; ++i) {
    record.buffer[i] = next_byte();
  }
  record.sum = static_cast<std::uint8_t>(sum);
  record.checksum = next_byte();
  if (marks >= kNoHexDigit) {
    ThrowForDigits(line);
  }
}

}  // namespace vendlingua
