#include "core/formats/hex.h"

#include <fmt/format.h>

#include <bit>

namespace vendlingua {
namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";

consteval std::array<std::uint16_t, 256> MakeDigitValues() {
  std::array<std::uint16_t, 256> values{};
  values.fill(kNoHexDigit);
  for (std::uint16_t value = 0; value < 16; ++value) {
    const auto digit = static_cast<unsigned char>(kDigits[value]);
    values[digit] = value;
    if (value >= 10) {
      values[digit + 'a' - 'A'] = value;
    }
  }
  return values;
}

consteval std::array<HexPair, 256> MakePairs() {
  std::array<HexPair, 256> pairs{};
  for (std::size_t byte = 0; byte < pairs.size(); ++byte) {
    pairs[byte] = {kDigits[byte >> 4U], kDigits[byte & 0xFU]};
  }
  return pairs;
}

}  // namespace

constexpr std::array<HexPair, 256> kHexPairs = MakePairs();
constexpr std::array<std::uint16_t, 256> kHexDigitValues = MakeDigitValues();

std::optional<std::uint32_t> ParseHex(std::string_view digits) {
  if (digits.empty() || digits.size() > 8) {
    return std::nullopt;
  }
  std::uint32_t value = 0;
  for (const char digit : digits) {
    const std::uint16_t digit_value = kHexDigitValues[static_cast<unsigned char>(digit)];
    if (digit_value == kNoHexDigit) {
      return std::nullopt;
    }
    value = (value << 4U) | digit_value;
  }
  return value;
}

std::uint32_t HexOrZero(std::string_view digits) { return ParseHex(digits).value_or(0); }

std::string HexField(std::uint64_t value, std::size_t width) {
  const std::string digits = Hex(value, width);
  return digits.substr(digits.size() - width);
}

std::string Hex(std::uint64_t value, std::size_t least_digits) {
  return fmt::format("{:0{}X}", value, least_digits);
}

std::string AddressText(std::uint64_t address) { return fmt::format("0x{0:X} ({0})", address); }

char* PutHex(char* at, std::uint64_t value, std::size_t least_digits) {
  constexpr std::size_t kBitsPerDigit = 4;
  const auto bits = static_cast<std::size_t>(std::bit_width(value));
  const std::size_t digits = std::max(least_digits, (bits + kBitsPerDigit - 1) / kBitsPerDigit);
  char* next = at + digits;
  for (; next - at >= 2; value >>= 2 * kBitsPerDigit) {
    const HexPair& pair = kHexPairs[value & 0xFFU];
    next = std::copy_backward(pair.begin(), pair.end(), next);
  }
  if (next != at) {
    *at = kDigits[value & 0xFU];
  }
  return at + digits;
}

void AppendHexByte(std::string& out, std::uint8_t byte) {
  out.append(kHexPairs[byte].data(), kHexPairs[byte].size());
}

DecodedHex DecodeHexPairs(std::string_view digits) {
  DecodedHex decoded{{}, digits};
  decoded.bytes.reserve(digits.size() / 2);
  while (decoded.rest.size() >= 2) {
    const std::uint32_t value = HexPairValue(decoded.rest[0], decoded.rest[1]);
    if (value > kLastByte) {
      break;
    }
    decoded.bytes.push_back(static_cast<std::uint8_t>(value));
    decoded.rest.remove_prefix(2);
  }
  return decoded;
}

std::string_view Columns(std::string_view text, std::size_t column, std::size_t length) {
  return column <= text.size() ? text.substr(column - 1, length) : std::string_view();
}

}  // namespace vendlingua
