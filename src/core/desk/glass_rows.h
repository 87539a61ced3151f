#ifndef VENDLINGUA_CORE_DESK_GLASS_ROWS_H_
#define VENDLINGUA_CORE_DESK_GLASS_ROWS_H_

#include <array>
#include <cstddef>
#include <vector>

#include "core/document/message_set.h"

namespace vendlingua {

/// What the two rows of the board's display show.
struct GlassRows {
  std::array<DisplayCodes, 2> codes{};
  /// Cells of a row that the board fills, as it counts them: its digits run.
  std::array<std::vector<bool>, 2> board_fills{};
  /// The row of the message that was asked for.
  std::size_t current = 0;

  bool HasBoardCells() const;
};

/// Message `message` and its partner: the board shows an even one above the odd one that follows
/// it. They are those of the destination, or of the origin while none is open.
GlassRows GlassRowsOf(const MessageSet& set, std::size_t message);

/// The cells as they are after `ticks`: each tick counts the digits on by one.
DisplayCodes RowAt(const GlassRows& rows, std::size_t row, unsigned ticks);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_GLASS_ROWS_H_
