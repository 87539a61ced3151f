#include "core/exchange/text_layout.h"

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

Layout LayOut(const LooseText& text, std::span<const CellRange> board, std::size_t width) {
  DisplayCodes cells;
  for (std::size_t i = 0; i < text.parts().size(); ++i) {
    const bool is_last = i == board.size();
    const std::size_t column = is_last ? width : board[i].first;
    const auto part = TrimRight(text.parts()[i]);
    if (cells.size() + part.size() > column) {
      const CellRange room = {cells.size(), column - cells.size()};
      return {{}, Overflow{{part.begin(), part.end()}, room}};
    }
    cells.insert(cells.end(), part.begin(), part.end());
    cells.resize(column, kBlank);
    if (!is_last) {
      cells.insert(cells.end(), board[i].count, kPlaceholder);
    }
  }
  return {cells, std::nullopt};
}

bool StandsCentred(std::span<const DisplayCode> cells) {
  const auto from_first = TrimRight(cells);
  const std::size_t behind = cells.size() - from_first.size();
  const std::size_t before = from_first.size() - Trim(cells).size();
  return before > 0 && before + 1 >= behind && behind + 1 >= before;
}

Layout Centred(std::span<const DisplayCode> text, std::size_t width) {
  const auto trimmed = Trim(text);
  if (trimmed.size() > width) {
    return {{}, Overflow{{trimmed.begin(), trimmed.end()}, {0, width}}};
  }
  DisplayCodes cells((width - trimmed.size()) / 2, kBlank);
  cells.insert(cells.end(), trimmed.begin(), trimmed.end());
  return {FitTo(cells, width), std::nullopt};
}

}  // namespace vendlingua
