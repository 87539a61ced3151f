#ifndef VENDLINGUA_CORE_LAYOUT_CELL_RANGE_H_
#define VENDLINGUA_CORE_LAYOUT_CELL_RANGE_H_

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "core/document/display_code.h"

namespace vendlingua {

/// Neighbouring cells of a message, counted from 0.
struct CellRange {
  std::size_t first = 0;
  std::size_t count = 0;

  std::size_t End() const { return first + count; }
  bool operator==(const CellRange&) const = default;
};

/// The cells below `width` of which `holds` is true, neighbours together.
template <typename Condition>
std::vector<CellRange> CellsWhere(std::size_t width, const Condition& holds) {
  std::vector<CellRange> ranges;
  bool goes_on = false;
  for (std::size_t cell = 0; cell < width; ++cell) {
    const bool is_in = holds(cell);
    if (is_in && !goes_on) {
      ranges.push_back({cell, 0});
    }
    if (is_in) {
      ++ranges.back().count;
    }
    goes_on = is_in;
  }
  return ranges;
}

/// The placeholders of a text.
inline std::vector<CellRange> PlaceholdersOf(std::span<const DisplayCode> cells) {
  return CellsWhere(cells.size(), [&](std::size_t cell) { return cells[cell] == kPlaceholder; });
}

/// What `placeholders` leave of `width` cells: the fields before, between and behind them, one more
/// than there are placeholders. A field may be empty.
std::vector<CellRange> FieldsBetween(std::span<const CellRange> placeholders, std::size_t width);

/// The cells of a field.
inline std::span<const DisplayCode> CellsOf(std::span<const DisplayCode> text,
                                            const CellRange& field) {
  return text.subspan(field.first, field.count);
}

/// The cells in English words, counted from 1: "cell 9", "cells 9 and 11 to 16". There is at least
/// one.
std::string InWords(std::span<const CellRange> cells);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_LAYOUT_CELL_RANGE_H_
