#ifndef VENDLINGUA_CORE_DOCUMENT_DISPLAY_CODE_H_
#define VENDLINGUA_CORE_DOCUMENT_DISPLAY_CODE_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vendlingua {

/// One cell of the display: the code that the character generator draws, 0 to 255. In files it is
/// one byte or two hexadecimal digits.
using DisplayCode = std::uint8_t;
using DisplayCodes = std::vector<DisplayCode>;

inline constexpr DisplayCode kBlank = 0x20;
/// A cell that the board fills while it runs ("þ"): a digit, a price, a symbol.
inline constexpr DisplayCode kPlaceholder = 0xFE;

/// Display codes as UTF-8 text and back, by Windows-1252; its five unassigned codes stand for the
/// C1 code point of the same value, so that all 256 codes survive the way there and back.
std::string ToUtf8(std::span<const DisplayCode> codes);

/// The display code of one Unicode character, if it has one.
std::optional<DisplayCode> ToDisplayCode(char32_t character);

/// The Unicode character that a display code stands for.
char32_t ToUnicode(DisplayCode code);

/// UTF-8 text as display codes. `unknown` names the first character that has none (or a piece of
/// malformed UTF-8); `codes` is what stands before it.
struct CodesFromUtf8 {
  DisplayCodes codes;
  std::optional<std::string> unknown;
};
CodesFromUtf8 ToDisplayCodes(std::string_view utf8);

/// File bytes as display codes.
DisplayCodes CodesFromBytes(std::string_view bytes);

/// Display codes as file bytes.
std::string BytesFromCodes(std::span<const DisplayCode> codes);

/// Upper case by Windows-1252 ("è" becomes "È"); a letter without a capital there stays.
DisplayCode ToUpper(DisplayCode code);

/// Without the blanks at the end.
std::span<const DisplayCode> TrimRight(std::span<const DisplayCode> codes);
/// Without the blanks at both ends.
std::span<const DisplayCode> Trim(std::span<const DisplayCode> codes);

/// Exactly `width` cells: padded with blanks on the right, or cut.
DisplayCodes FitTo(std::span<const DisplayCode> codes, std::size_t width);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DOCUMENT_DISPLAY_CODE_H_
