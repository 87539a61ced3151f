#include "core/proof/glass.h"

namespace vendlingua {

std::vector<GlassCell> GlassCells(std::span<const DisplayCode> text, unsigned first_digit) {
  std::vector<GlassCell> cells;
  cells.reserve(text.size());
  unsigned digit = first_digit;
  for (const DisplayCode code : text) {
    const bool filled = code == kPlaceholder;
    cells.push_back({filled ? static_cast<DisplayCode>('0' + digit % 10) : code, filled});
    digit += filled ? 1 : 0;
  }
  return cells;
}

}  // namespace vendlingua
