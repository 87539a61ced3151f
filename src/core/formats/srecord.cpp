#include "core/formats/srecord.h"

#include <fmt/format.h>

#include <algorithm>

namespace vendlingua {
namespace {

constexpr std::size_t kBytesPerRecord = 16;
constexpr std::size_t kCountEnd = 4;  // characters of type and count
// "S2", count, address, data, checksum, CR LF: usually with 6 digits of address, at most with 16.
constexpr std::size_t kUsualLineLength = 2 + 2 + 6 + 2 * kBytesPerRecord + 2 + 2;
constexpr std::size_t kLongestLine = kUsualLineLength - 6 + 16;

constexpr std::size_t AddressBytes(SRecordType type) { return type == SRecordType::kS1 ? 2 : 3; }

// The bytes of an address as the board's loader sums them: read back from its digits, the first
// pair, the last pair and, in S2 records, the pair between. An address without padding may have
// fewer digits or more.
std::uint32_t AddressSum(std::uint64_t address, std::size_t digits, SRecordType type) {
  const auto pair_from = [&](std::size_t first) -> std::uint32_t {
    if (first >= digits) {
      return 0;
    }
    const std::size_t end = std::min(first + 2, digits);
    const std::uint64_t mask = end - first == 2 ? 0xFF : 0xF;
    return static_cast<std::uint32_t>((address >> (4 * (digits - end))) & mask);
  };
  const std::uint32_t sum = pair_from(0) + pair_from(digits < 2 ? 0 : digits - 2);
  return type == SRecordType::kS2 ? sum + pair_from(2) : sum;
}

char* PutText(char* at, std::string_view text) { return std::copy(text.begin(), text.end(), at); }

char* PutByte(char* at, std::uint8_t byte) {
  const HexPair& digits = kHexPairs[byte];
  return std::copy(digits.begin(), digits.end(), at);
}

// The number of bytes is part of the type, so that the loop of a full record is unrolled.
template <std::size_t kExtent>
char* PutData(char* at, std::span<const std::uint8_t, kExtent> data, std::uint32_t& sum) {
  for (const std::uint8_t byte : data) {
    at = PutByte(at, byte);
    sum += byte;
  }
  return at;
}

void AppendRecord(std::string& out, SRecordType type, std::uint64_t address,
                  std::size_t address_digits, std::span<const std::uint8_t> data) {
  const auto count = static_cast<std::uint8_t>(AddressBytes(type) + 1 + data.size());
  std::array<char, kLongestLine> line;
  char* end = PutText(line.data(), type == SRecordType::kS1 ? "S1" : "S2");
  end = PutByte(end, count);
  const char* address_start = end;
  end = PutHex(end, address, address_digits);
  std::uint32_t sum =
      count + AddressSum(address, static_cast<std::size_t>(end - address_start), type);
  end = data.size() == kBytesPerRecord ? PutData(end, data.first<kBytesPerRecord>(), sum)
                                       : PutData(end, data, sum);
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
  throw SRecordSyntaxError(fmt::format("the count is {}, but the line holds {} bytes{}", count,
                                       line.size() < 4 ? 0 : (line.size() - 4) / 2,
                                       line.size() % 2 != 0 ? " and a half" : ""));
}

[[noreturn]] void ThrowForDigits(std::string_view line) {
  const std::string_view rest = DecodeHexPairs(line.substr(2)).rest;
  throw SRecordSyntaxError(fmt::format("column {}: \"{}\" is no hexadecimal pair",
                                       line.size() - rest.size() + 1, rest.substr(0, 2)));
}

// The bytes behind the count: exactly those that the line holds, at least an address and a
// checksum.
std::size_t CountOf(std::string_view line, std::size_t address_size) {
  const std::uint32_t count = line.size() < kCountEnd ? 0 : HexPairValue(line[2], line[3]);
  if (count > kLastByte) {
    ThrowForDigits(line);
  }
  if (count < address_size + 1 || line.size() != kCountEnd + std::size_t{2} * count) {
    ThrowForCount(line, count);
  }
  return count;
}

}  // namespace

SRecordType SRecordTypeFor(std::uint32_t start) {
  return start <= 0xFFFF ? SRecordType::kS1 : SRecordType::kS2;
}

std::uint32_t SumOfHexPairs(std::string_view text) {
  std::uint32_t sum = 0;
  for (std::size_t column = 1; column <= text.size(); column += 2) {
    sum += HexPairOrZero(text, column);
  }
  return sum;
}

std::string FormatSRecords(std::span<const std::uint8_t> image, std::uint32_t start,
                           SRecordType type, std::size_t address_digits) {
  std::string lines;
  lines.reserve((image.size() / kBytesPerRecord + 1) * kUsualLineLength);
  for (std::size_t i = 0; i < image.size(); i += kBytesPerRecord) {
    AppendRecord(lines, type, std::uint64_t{start} + i, address_digits,
                 image.subspan(i, std::min(kBytesPerRecord, image.size() - i)));
  }
  return lines;
}

void ParseSRecord(std::string_view line, SRecord& record) {
  if (line.size() < 2 || line[0] != 'S' || line[1] < '0' || line[1] > '9') {
    throw SRecordSyntaxError("does not begin with S and a digit");
  }
  record.type = line[1];
  record.address_size = AddressBytesOf(record.type);
  const std::size_t count = CountOf(line, record.address_size);

  // Pairs that are none leave their mark here and are looked for when all have been read.
  std::uint32_t marks = 0;
  std::uint32_t sum = 0;
  const char* digits = line.data() + kCountEnd;
  for (std::uint8_t& byte : std::span(record.bytes).first(count)) {
    const std::uint32_t value = HexPairValue(digits[0], digits[1]);
    digits += 2;
    marks |= value;
    byte = static_cast<std::uint8_t>(value);
    sum += byte;
  }
  if (marks > kLastByte) {
    ThrowForDigits(line);
  }
  record.address = 0;
  for (const std::uint8_t byte : std::span(record.bytes).first(record.address_size)) {
    record.address = (record.address << 8U) | byte;
  }
  record.size = count - record.address_size - 1;
  record.checksum = record.bytes[count - 1];
  record.sum = static_cast<std::uint8_t>(count + sum - record.checksum);
}

}  // namespace vendlingua
