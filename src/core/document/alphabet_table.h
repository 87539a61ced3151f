#ifndef VENDLINGUA_CORE_DOCUMENT_ALPHABET_TABLE_H_
#define VENDLINGUA_CORE_DOCUMENT_ALPHABET_TABLE_H_

#include <array>
#include <cstddef>
#include <cstdint>

#include "core/document/message_set.h"

namespace vendlingua {

/// What a character generator draws for one code: 5 x 8 dots.
struct Glyph {
  static constexpr std::size_t kColumns = 5;
  static constexpr std::size_t kRows = 8;

  /// The Unicode character that the picture shows; 0 when there is none for it.
  char32_t character = 0;
  /// Top row first; bit 4 is the dot at the left.
  std::array<std::uint8_t, kRows> rows{};

  /// Whether there is a dot; columns and rows count from the top left.
  bool HasDot(std::size_t column, std::size_t row) const {
    return (std::uint32_t{rows.at(row)} >> (kColumns - 1 - column) & 1U) != 0;
  }

  bool IsEmpty() const { return rows == decltype(rows){}; }
};

/// The glyphs of one display type by code. Code 0 draws nothing.
using GlyphTable = std::array<Glyph, 256>;

/// By display type; made of the same dot patterns as the fonts.
extern const std::array<GlyphTable, kDisplayTypes> kGlyphTables;

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DOCUMENT_ALPHABET_TABLE_H_
