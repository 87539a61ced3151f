#include "core/layout/cell_range.h"

#include <fmt/format.h>

namespace vendlingua {
namespace {

std::string InWords(const CellRange& range) {
  const std::size_t first = range.first + 1;
  return range.count == 1 ? fmt::to_string(first) : fmt::format("{} to {}", first, range.End());
}

}  // namespace

std::vector<CellRange> FieldsBetween(std::span<const CellRange> placeholders, std::size_t width) {
  std::vector<CellRange> fields;
  std::size_t first = 0;
  for (const CellRange& range : placeholders) {
    fields.push_back({first, range.first - first});
    first = range.End();
  }
  fields.push_back({first, width - first});
  return fields;
}

std::string InWords(std::span<const CellRange> cells) {
  std::string words = cells.size() == 1 && cells.front().count == 1 ? "cell " : "cells ";
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const bool is_last = i + 1 == cells.size();
    words += (i == 0 ? "" : is_last ? " and " : ", ") + InWords(cells[i]);
  }
  return words;
}

}  // namespace vendlingua
