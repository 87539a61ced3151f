#include "core/desk/replacement.h"

namespace vendlingua {
namespace {

bool TouchesBoard(const CellText& text, const CellRun& range) {
  for (std::size_t cell = range.first; cell < range.End(); ++cell) {
    if (text.BoardFills(cell)) {
      return true;
    }
  }
  return false;
}

// The blanks at its end make up for what a field grew or shrank by.
bool FitField(DisplayCodes& field, std::size_t cells) {
  const std::size_t used = TrimRight(field).size();
  field.resize(cells, kBlank);
  return used <= cells;
}

}  // namespace

std::optional<DisplayCodes> WithReplacements(const CellText& text,
                                             std::span<const Replacement> replacements) {
  const auto cells = text.cells();
  DisplayCodes result;
  DisplayCodes field;
  std::size_t field_first = 0;
  auto next = replacements.begin();
  for (std::size_t cell = 0; cell <= cells.size(); ++cell) {
    if (cell == cells.size() || text.BoardFills(cell)) {
      if (!FitField(field, cell - field_first)) {
        return std::nullopt;
      }
      result.insert(result.end(), field.begin(), field.end());
      result.push_back(kBlank);
      field.clear();
      field_first = cell + 1;
    } else if (next != replacements.end() && cell == next->range.first) {
      if (TouchesBoard(text, next->range)) {
        return std::nullopt;
      }
      field.insert(field.end(), next->by.begin(), next->by.end());
      cell = next->range.End() - 1;
      ++next;
    } else {
      field.push_back(cells[cell]);
    }
  }
  result.resize(TrimRight(result).size());
  return next == replacements.end() ? std::optional(result) : std::nullopt;
}

}  // namespace vendlingua
