#ifndef VENDLINGUA_CORE_FORMATS_HEX_H_
#define VENDLINGUA_CORE_FORMATS_HEX_H_

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vendlingua {

/// The value of 1 to 8 hexadecimal digits of either case; nothing for any other text.
std::optional<std::uint32_t> ParseHex(std::string_view digits);

/// As ParseHex, with 0 for what is not hexadecimal.
std::uint32_t HexOrZero(std::string_view digits);

/// Upper-case digits, zero-padded on the left to `width`; a value too wide loses its high digits.
std::string HexField(std::uint64_t value, std::size_t width);

/// Upper-case digits, as many as the value has but at least `least_digits`.
std::string Hex(std::uint64_t value, std::size_t least_digits = 1);

/// An address as people read it, both ways: "0x6000 (24576)".
std::string AddressText(std::uint64_t address);

/// Puts the digits of Hex() at `at`, where there is room for 16 or `least_digits`, and returns
/// their end.
char* PutHex(char* at, std::uint64_t value, std::size_t least_digits);

/// The two upper-case digits of every byte.
using HexPair = std::array<char, 2>;
extern const std::array<HexPair, 256> kHexPairs;

/// Appends the two digits of a byte.
void AppendHexByte(std::string& out, std::uint8_t byte);

/// The value of every character as a hexadecimal digit of either case, `kNoHexDigit` where it is
/// none.
inline constexpr std::uint16_t kNoHexDigit = 0xFF00;
extern const std::array<std::uint16_t, 256> kHexDigitValues;

/// What two characters spell as a pair of hexadecimal digits: at most `kLastByte`, or a value above
/// it when one of them is none.
inline constexpr std::uint32_t kLastByte = 0xFF;
inline std::uint32_t HexPairValue(char high, char low) {
  return std::uint32_t{kHexDigitValues[static_cast<unsigned char>(high)]} << 4U |
         kHexDigitValues[static_cast<unsigned char>(low)];
}

/// The byte that the two characters from the 1-based column `column` on spell; 0 where they are not
/// hexadecimal, or the first one alone where the text ends behind it.
inline std::uint8_t HexPairOrZero(std::string_view text, std::size_t column) {
  if (column >= text.size()) {
    return static_cast<std::uint8_t>(HexOrZero(text.substr(std::min(column - 1, text.size()))));
  }
  const std::uint32_t value = HexPairValue(text[column - 1], text[column]);
  return value <= kLastByte ? static_cast<std::uint8_t>(value) : std::uint8_t{0};
}

/// Pairs of hexadecimal digits, decoded.
struct DecodedHex {
  std::vector<std::uint8_t> bytes;
  std::string_view rest;  ///< from the first pair on that is none; empty when all of them are
};
DecodedHex DecodeHexPairs(std::string_view digits);

/// `text` from the 1-based column `column` on, at most `length` characters; shorter, down to empty,
/// where the text ends before.
std::string_view Columns(std::string_view text, std::size_t column, std::size_t length);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_HEX_H_
