#ifndef VENDLINGUA_CORE_DESK_TEXT_DIFFERENCE_H_
#define VENDLINGUA_CORE_DESK_TEXT_DIFFERENCE_H_

#include <span>
#include <vector>

#include "core/desk/cell_run.h"
#include "core/document/display_code.h"

namespace vendlingua {

/// The cells of `text` that `other` does not have in the same order, from left to right: as few as
/// can be. Blanks are no difference.
std::vector<CellRun> DifferenceFrom(std::span<const DisplayCode> other,
                                    std::span<const DisplayCode> text);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_TEXT_DIFFERENCE_H_
