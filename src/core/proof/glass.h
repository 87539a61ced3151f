#ifndef VENDLINGUA_CORE_PROOF_GLASS_H_
#define VENDLINGUA_CORE_PROOF_GLASS_H_

#include <cstddef>
#include <span>
#include <vector>

#include "core/document/alphabet_table.h"
#include "core/document/display_code.h"

namespace vendlingua {

/// A display shows its messages in rows of two: message 0 over message 1, 2 over 3.
inline constexpr std::size_t kGlassRows = 2;

/// A cell is a dot wider and higher than its glyph.
inline constexpr std::size_t kGlassCellColumns = Glyph::kColumns + 1;
inline constexpr std::size_t kGlassCellRows = Glyph::kRows + 1;

/// One cell as people see it in front of the machine.
struct GlassCell {
  DisplayCode code = kBlank;
  bool filled_by_board = false;

  bool operator==(const GlassCell&) const = default;
};

/// The cells of a text. A placeholder shows a digit; `first_digit` is that of the first one, the
/// others count on from it.
std::vector<GlassCell> GlassCells(std::span<const DisplayCode> text, unsigned first_digit = 1);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PROOF_GLASS_H_
