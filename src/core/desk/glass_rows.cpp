#include "core/desk/glass_rows.h"

#include <algorithm>

namespace vendlingua {

bool GlassRows::HasBoardCells() const {
  return std::ranges::any_of(board_fills, [](const std::vector<bool>& row) {
    return std::ranges::find(row, true) != row.end();
  });
}

GlassRows GlassRowsOf(const MessageSet& set, std::size_t message) {
  GlassRows rows{.current = message % 2};
  const std::size_t first = message - rows.current;
  const MessageTexts& texts = set.DestinationIsOpen() ? set.DestText : set.OriginText;
  const std::size_t width = std::min(set.Width(), DisplayText::kCells);
  for (std::size_t row = 0; row < rows.codes.size(); ++row) {
    const bool is_there = first + row < set.MessageCount();
    const DisplayText text = is_there ? texts.at(first + row) : DisplayText();
    rows.codes.at(row).assign(text.Cells().begin(),
                              text.Cells().begin() + static_cast<std::ptrdiff_t>(width));
    for (std::size_t cell = 0; cell < width; ++cell) {
      rows.board_fills.at(row).push_back(is_there && set.BoardFills(first + row, cell));
    }
  }
  return rows;
}

DisplayCodes RowAt(const GlassRows& rows, std::size_t row, unsigned ticks) {
  constexpr unsigned kDigits = 10;
  DisplayCodes codes = rows.codes.at(row);
  for (std::size_t cell = 0; cell < codes.size(); ++cell) {
    if (rows.board_fills.at(row)[cell]) {
      codes[cell] = static_cast<DisplayCode>('0' + (ticks + cell) % kDigits);
    }
  }
  return codes;
}

}  // namespace vendlingua
