#include "msgfiles/hex.h"

#include <array>

namespace vendlingua {
namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";
constexpr std::uint8_t kNoDigit = 0xFF;

// The value of every character as a hexadecimal digit.
constexpr auto kDigitValues = [] {
  std::array<std::uint8_t, 256> values{};
  values.fill(kNoDigit);
  for (std::uint8_t value = 0; value < 16; ++value) {
    const auto digit = static_cast<unsigned char>(kDigits[value]);
    values[digit] = value;
    if (value >= 10) {
      values[digit + 'a' - 'A'] = value;
    }
  }
  return values;
}();

}  // namespace

std::optional<std::uint32_t> ParseHex(std::string_view digits) {
  if (digits.empty() || digits.size() > 8) {
    return std::nullopt;
  }
  std::uint32_t value = 0;
  for (const char digit : digits) {
    const std::uint8_t digit_value = kDigitValues[static_cast<unsigned char>(digit)];
    if (digit_value == kNoDigit) {
      return std::nullopt;
    }
    value = (value << 4U) | digit_value;
  }
  return value;
}

std::uint32_t HexOrZero(std::string_view digits) { return ParseHex(digits).value_or(0); }

std::string HexField(std::uint64_t value, std::size_t width) {
  std::string field(width, '0');
  for (std::size_t i = width; i > 0; --i) {
    field[i - 1] = kDigits[value & 0xFU];
    value >>= 4U;
  }
  return field;
}

std::string Hex(std::uint64_t value) {
  std::size_t width = 1;
  while (width < 16 && (value >> (4 * width)) != 0) {
    ++width;
  }
  return HexField(value, width);
}

void AppendHexByte(std::string& out, std::uint8_t byte) {
  out.push_back(kDigits[byte >> 4U]);
  out.push_back(kDigits[byte & 0xFU]);
}

std::string_view Columns(std::string_view text, std::size_t column, std::size_t length) {
  return column <= text.size() ? text.substr(column - 1, length) : std::string_view();
}

}  // namespace vendlingua
