#include "core/desk/glass_rows.h"

#include <algorithm>

namespace vendlingua {

bool GlassRows::HasBoardCells() const {
  return std::ranges::any_of(codes, [](const DisplayCodes& row) {
    return std::ranges::find(row, kPlaceholder) != row.end();
  });
}

GlassRows GlassRowsOf(const MessageSet& set, std::size_t message) {
  GlassRows rows;
  rows.current = message % kGlassRows;
  const std::size_t first = message - rows.current;
  const MessageTexts& texts = set.DestinationIsOpen() ? set.DestText : set.OriginText;
  for (std::size_t row = 0; row < kGlassRows && first + row < set.MessageCount(); ++row) {
    const auto text = texts.at(first + row).First(set.Width());
    DisplayCodes& codes = rows.codes.at(row);
    codes.assign(text.begin(), text.end());
    for (std::size_t cell = 0; cell < codes.size(); ++cell) {
      codes[cell] = set.BoardFills(first + row, cell) ? kPlaceholder : codes[cell];
    }
  }
  return rows;
}

}  // namespace vendlingua
