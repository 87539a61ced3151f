#ifndef VENDLINGUA_CORE_TRANSFER_LAYOUT_H_
#define VENDLINGUA_CORE_TRANSFER_LAYOUT_H_

#include <optional>
#include <span>

#include "core/document/display_code.h"

namespace vendlingua {

/// Lays a translation out anew for an origin whose blanks or placeholder columns changed. The
/// placeholders stand where `origin` has them, what stands before one is padded to its column, and
/// each piece begins at the column of the origin's, or before it where it needs the room; a blank
/// that keeps it off a placeholder stays. Without placeholders a centred origin gives a centred
/// text, one at the right edge a text that ends there. The result has as many cells as `origin`;
/// nothing when a piece does not fit, or when the placeholder runs are not as many as the origin's.
std::optional<DisplayCodes> LayOut(std::span<const DisplayCode> translation,
                                   std::span<const DisplayCode> origin);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_TRANSFER_LAYOUT_H_
