#include "core/layout/standing.h"

#include <algorithm>

namespace vendlingua {

std::size_t BlanksBefore(std::span<const DisplayCode> field) {
  return TrimRight(field).size() - Trim(field).size();
}

std::size_t BlanksBehind(std::span<const DisplayCode> field) {
  return field.size() - TrimRight(field).size();
}

Standing StandingOf(std::span<const DisplayCode> field) {
  const std::size_t before = BlanksBefore(field);
  const std::size_t behind = BlanksBehind(field);
  const std::size_t difference = std::max(before, behind) - std::min(before, behind);
  return {.centred = difference <= 1, .left = before == 0, .right = behind == 0};
}

DisplayCodes LaidOut(std::span<const DisplayCode> field, const Standing& standing) {
  const auto words = Trim(field);
  const std::size_t blanks = field.size() - words.size();
  std::size_t before = standing.left ? 0 : blanks;
  if (standing.centred) {
    before = blanks / 2;
  }
  DisplayCodes laid_out(before, kBlank);
  laid_out.insert(laid_out.end(), words.begin(), words.end());
  laid_out.resize(field.size(), kBlank);
  return laid_out;
}

bool StandsCentred(std::span<const DisplayCode> field) {
  const Standing standing = StandingOf(field);
  return standing.centred && !standing.left;
}

std::optional<CellRange> FieldOfWords(std::span<const DisplayCode> text) {
  std::optional<CellRange> found;
  for (const CellRange& field : FieldsBetween(PlaceholdersOf(text), text.size())) {
    if (Trim(CellsOf(text, field)).empty()) {
      continue;
    }
    if (found) {
      return std::nullopt;
    }
    found = field;
  }
  return found;
}

}  // namespace vendlingua
