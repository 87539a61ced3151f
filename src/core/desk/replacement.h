#ifndef VENDLINGUA_CORE_DESK_REPLACEMENT_H_
#define VENDLINGUA_CORE_DESK_REPLACEMENT_H_

#include <optional>
#include <span>

#include "core/desk/cell_run.h"
#include "core/desk/cell_text.h"

namespace vendlingua {

/// Other characters in the place of some cells.
struct Replacement {
  CellRun range;
  DisplayCodes by;
};

/// The text, as CellText::Text() has it, with the replacements, which stand from left to right in
/// it. What stands behind a cell of the board keeps its columns. Nothing when something does not
/// fit before the next cell of the board, or when a replacement would take one away.
std::optional<DisplayCodes> WithReplacements(const CellText& text,
                                             std::span<const Replacement> replacements);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_REPLACEMENT_H_
