#ifndef VENDLINGUA_CORE_DESK_CELL_TEXT_H_
#define VENDLINGUA_CORE_DESK_CELL_TEXT_H_

#include <cstddef>
#include <span>
#include <vector>

#include "core/document/display_code.h"
#include "core/document/message_set.h"

namespace vendlingua {

/// A message that is being typed in its cells. The cells that the board fills stay what and where
/// they are: what is typed goes around them, and what stands behind them keeps its columns.
/// Positions are carets: position n stands before cell n.
class CellText {
 public:
  CellText() = default;
  CellText(DisplayCodes cells, std::vector<bool> board_fills);
  /// Message `message` of the destination.
  CellText(const MessageSet& set, std::size_t message);

  std::span<const DisplayCode> cells() const { return cells_; }
  bool BoardFills(std::size_t cell) const { return cell < cells_.size() && board_fills_[cell]; }

  /// The text as the edit box has it: blanks for the board's cells, none at the end.
  DisplayCodes Text() const;

  /// Empties the cells from `first` to before `last`: what follows them, up to the next cell of the
  /// board, moves up. Returns where the caret goes: before the cells of the board when it would
  /// stand among them.
  std::size_t Erase(std::size_t first, std::size_t last);

  enum class Mode { kInsert, kOverwrite };
  struct Typed {
    std::size_t caret;
    bool fits;  ///< false: there was no room, not all of it was typed
  };
  /// Types `codes` at `caret`. It jumps over the cells of the board; a placeholder among the codes
  /// stands for one of them.
  Typed Type(std::size_t caret, std::span<const DisplayCode> codes, Mode mode);

  /// Where a caret that moved to `caret` comes to stand: not among cells of the board, but behind
  /// them, or before them when it moves to the left.
  std::size_t Forward(std::size_t caret) const;
  std::size_t Backward(std::size_t caret) const;

 private:
  bool StandsAmongBoardCells(std::size_t caret) const;
  std::size_t FieldEnd(std::size_t cell) const;
  bool TypeOne(std::size_t cell, DisplayCode code, Mode mode);

  DisplayCodes cells_;
  std::vector<bool> board_fills_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_CELL_TEXT_H_
