#ifndef VENDLINGUA_CORE_LAYOUT_TEXT_LAYOUT_H_
#define VENDLINGUA_CORE_LAYOUT_TEXT_LAYOUT_H_

#include <cstddef>
#include <optional>
#include <span>

#include "core/document/display_code.h"
#include "core/layout/cell_range.h"
#include "core/layout/loose_text.h"

// How a text comes to stand in the cells of its message, around those that the board fills.

namespace vendlingua {

/// A part of a text that has no room where it belongs.
struct Overflow {
  DisplayCodes part;
  CellRange room;
};

/// A text in the cells of its message, or why it has no place there.
struct Layout {
  DisplayCodes cells;
  std::optional<Overflow> overflow;
};

/// Lays a text out as it was written for its message, which has `width` cells. It matches `board`:
/// its placeholders are in the cells that the board fills, and what stands before one is padded
/// with blanks to its column. Blanks at the start of a part are the writer's and stay.
Layout LayOut(const LooseText& text, std::span<const CellRange> board, std::size_t width);

/// Lays a text out that was written for another message. Its placeholders stand where `origin` has
/// them, and each part stands in its field as the origin's does: it begins at the same column, or
/// before it where it needs the room, and a blank that keeps it off a placeholder stays. Without
/// placeholders a centred origin gives a centred text, one at the right edge a text that ends
/// there. Blanks around a part do not count. The result has as many cells as `origin`; nothing when
/// a part does not fit, or when the placeholders are not as many as the origin's.
std::optional<DisplayCodes> LayOutLike(std::span<const DisplayCode> origin,
                                       std::span<const DisplayCode> text);

/// A text, without the blanks around it, in the middle of `width` cells; half a blank to the left.
Layout Centred(std::span<const DisplayCode> text, std::size_t width);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_LAYOUT_TEXT_LAYOUT_H_
