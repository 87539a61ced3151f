#include "core/layout/loose_text.h"

#include <algorithm>

namespace vendlingua {

void LooseText::Append(std::span<const DisplayCode> codes) {
  bool in_placeholder = false;
  for (const DisplayCode code : codes) {
    const bool is_placeholder = code == kPlaceholder;
    if (is_placeholder && in_placeholder) {
      ++placeholders_.back();
    } else if (is_placeholder) {
      AppendPlaceholder(1);
    } else {
      parts_.back().push_back(code);
    }
    in_placeholder = is_placeholder;
  }
}

void LooseText::AppendPlaceholder(std::size_t cells) {
  placeholders_.push_back(cells);
  parts_.emplace_back();
}

bool LooseText::Matches(std::span<const CellRange> board) const {
  return std::equal(
      placeholders_.begin(), placeholders_.end(), board.begin(), board.end(),
      [](std::size_t cells, const CellRange& range) { return cells == range.count || cells == 0; });
}

DisplayCodes LooseText::AsItStands() const {
  DisplayCodes codes = parts_.front();
  for (std::size_t i = 0; i < placeholders_.size(); ++i) {
    codes.insert(codes.end(), placeholders_[i], kPlaceholder);
    codes.insert(codes.end(), parts_[i + 1].begin(), parts_[i + 1].end());
  }
  codes.resize(TrimRight(codes).size());
  return codes;
}

DisplayCodes LooseText::WithoutPlaceholders() const {
  DisplayCodes codes;
  for (const DisplayCodes& part : parts_) {
    codes.insert(codes.end(), part.begin(), part.end());
  }
  codes.resize(TrimRight(codes).size());
  return codes;
}

}  // namespace vendlingua
