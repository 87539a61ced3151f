#include "core/checks/standing.h"

#include <algorithm>

namespace vendlingua {
namespace {

std::size_t BlanksBefore(std::span<const DisplayCode> field) {
  return TrimRight(field).size() - Trim(field).size();
}

}  // namespace

Standing StandingOf(std::span<const DisplayCode> field) {
  const std::size_t before = BlanksBefore(field);
  const std::size_t behind = field.size() - TrimRight(field).size();
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

std::optional<WordField> FieldOfWords(std::span<const DisplayCode> text) {
  std::optional<WordField> found;
  for (auto begin = text.begin(); begin != text.end();) {
    const auto end = std::find(begin, text.end(), kPlaceholder);
    if (!Trim({begin, end}).empty()) {
      if (found) {
        return std::nullopt;
      }
      found = {static_cast<std::size_t>(begin - text.begin()),
               static_cast<std::size_t>(end - begin)};
    }
    begin = std::find_if(end, text.end(), [](DisplayCode code) { return code != kPlaceholder; });
  }
  return found;
}

}  // namespace vendlingua
