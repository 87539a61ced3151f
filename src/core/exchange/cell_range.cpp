#include "core/exchange/cell_range.h"

#include <fmt/format.h>

namespace vendlingua {
namespace {

std::string InWords(const CellRange& range) {
  const std::size_t first = range.first + 1;
  return range.count == 1 ? fmt::to_string(first)
                          : fmt::format("{} to {}", first, range.first + range.count);
}

}  // namespace

std::string InWords(std::span<const CellRange> cells) {
  std::string words = cells.size() == 1 && cells.front().count == 1 ? "cell " : "cells ";
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const bool is_last = i + 1 == cells.size();
    words += (i == 0 ? "" : is_last ? " and " : ", ") + InWords(cells[i]);
  }
  return words;
}

}  // namespace vendlingua
