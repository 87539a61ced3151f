#ifndef VENDLINGUA_CORE_DOCUMENT_ALPHABET_H_
#define VENDLINGUA_CORE_DOCUMENT_ALPHABET_H_

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/document/alphabet_table.h"
#include "core/document/display_code.h"

namespace vendlingua {

/// Text as the display codes that draw it.
struct DrawnText {
  DisplayCodes codes;
  /// The characters that the display cannot draw, and the pieces of malformed UTF-8, each once.
  std::vector<std::string> unknown;
};

/// The characters of one display type: what is exchanged with people is written in what the display
/// draws, not in the Windows-1252 characters that its codes would be elsewhere. Every code survives
/// the way out and in again.
class Alphabet {
 public:
  /// The alphabet of display type `display`; of the normal one for a number that is none.
  static const Alphabet& Of(std::size_t display);

  const Glyph& GlyphOf(DisplayCode code) const { return glyphs_.at(code); }

  /// The character that stands for `code`: what it draws, or U+F000 + code where the picture has no
  /// character of its own or is that of another code, too.
  char32_t CharacterOf(DisplayCode code) const { return characters_.at(code); }

  /// The code that draws `character`; Cyrillic letters that look like a Latin one have its code,
  /// half-width katakana those of the full width. What the display does not draw goes by its
  /// Windows-1252 code, as older tables have it.
  std::optional<DisplayCode> CodeOf(char32_t character) const;

  /// Cells as UTF-8 text, in the order in which they stand.
  std::string TextOf(std::span<const DisplayCode> codes) const;

  /// UTF-8 text as cells. A voiced katakana takes two: the letter and its mark.
  DrawnText CodesOf(std::string_view utf8) const;

 private:
  explicit Alphabet(std::size_t display);

  void AddPictures();

  const GlyphTable& glyphs_;
  bool is_cyrillic_;
  std::array<char32_t, 256> characters_{};
  std::unordered_map<char32_t, DisplayCode> codes_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DOCUMENT_ALPHABET_H_
