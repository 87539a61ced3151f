#ifndef VENDLINGUA_CORE_DESK_GLASS_ROWS_H_
#define VENDLINGUA_CORE_DESK_GLASS_ROWS_H_

#include <array>
#include <cstddef>

#include "core/document/message_set.h"
#include "core/proof/glass.h"

namespace vendlingua {

/// What the rows of the board's display show, with placeholders in the cells that the board fills.
struct GlassRows {
  std::array<DisplayCodes, kGlassRows> codes{};
  /// The row of the message that was asked for.
  std::size_t current = 0;

  bool HasBoardCells() const;
};

/// Message `message` and its partner: the board shows an even one above the odd one that follows
/// it. They are those of the destination, or of the origin while none is open.
GlassRows GlassRowsOf(const MessageSet& set, std::size_t message);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_GLASS_ROWS_H_
