#include "core/desk/cell_text.h"

#include <algorithm>
#include <utility>

namespace vendlingua {

CellText::CellText(DisplayCodes cells, std::vector<bool> board_fills)
    : cells_(std::move(cells)), board_fills_(std::move(board_fills)) {}

CellText::CellText(const MessageSet& set, std::size_t message) {
  const auto cells = set.DestText.at(message).First(set.Width());
  cells_.assign(cells.begin(), cells.end());
  for (std::size_t cell = 0; cell < cells_.size(); ++cell) {
    board_fills_.push_back(set.BoardFills(message, cell));
  }
}

DisplayCodes CellText::Text() const {
  DisplayCodes text = cells_;
  for (std::size_t cell = 0; cell < text.size(); ++cell) {
    if (board_fills_[cell]) {
      text[cell] = kBlank;
    }
  }
  text.resize(TrimRight(text).size());
  return text;
}

std::size_t CellText::Erase(std::size_t first, std::size_t last) {
  for (std::size_t cell = std::min(last, cells_.size()); cell > first; --cell) {
    if (!board_fills_[cell - 1]) {
      const auto place = cells_.begin() + static_cast<std::ptrdiff_t>(cell - 1);
      const auto end = cells_.begin() + static_cast<std::ptrdiff_t>(FieldEnd(cell - 1));
      std::rotate(place, place + 1, end);
      *(end - 1) = kBlank;
    }
  }
  return Backward(first);
}

CellText::Typed CellText::Type(std::size_t caret, std::span<const DisplayCode> codes, Mode mode) {
  for (const DisplayCode code : codes) {
    if (code == kPlaceholder && BoardFills(caret)) {
      ++caret;
      continue;
    }
    while (BoardFills(caret)) {
      ++caret;
    }
    if (!TypeOne(caret, code, mode)) {
      return {caret, false};
    }
    ++caret;
  }
  return {caret, true};
}

// What is inserted needs a blank at the end of its field to push out.
bool CellText::TypeOne(std::size_t cell, DisplayCode code, Mode mode) {
  if (cell >= cells_.size()) {
    return false;
  }
  const auto place = cells_.begin() + static_cast<std::ptrdiff_t>(cell);
  if (mode == Mode::kInsert) {
    const auto end = cells_.begin() + static_cast<std::ptrdiff_t>(FieldEnd(cell));
    if (*(end - 1) != kBlank) {
      return false;
    }
    std::rotate(place, end - 1, end);
  }
  *place = code;
  return true;
}

std::size_t CellText::Forward(std::size_t caret) const {
  while (StandsAmongBoardCells(caret)) {
    ++caret;
  }
  return caret;
}

std::size_t CellText::Backward(std::size_t caret) const {
  while (StandsAmongBoardCells(caret)) {
    --caret;
  }
  return caret;
}

bool CellText::StandsAmongBoardCells(std::size_t caret) const {
  return caret > 0 && BoardFills(caret - 1) && BoardFills(caret);
}

// Behind the last cell of the field that `cell` lies in.
std::size_t CellText::FieldEnd(std::size_t cell) const {
  while (cell < cells_.size() && !board_fills_[cell]) {
    ++cell;
  }
  return cell;
}

}  // namespace vendlingua
