#ifndef VENDLINGUA_CORE_LAYOUT_STANDING_H_
#define VENDLINGUA_CORE_LAYOUT_STANDING_H_

#include <cstddef>
#include <optional>
#include <span>

#include "core/document/display_code.h"
#include "core/layout/cell_range.h"

namespace vendlingua {

/// Blanks before the first word of a field, none where it has no word, and behind the last one.
std::size_t BlanksBefore(std::span<const DisplayCode> field);
std::size_t BlanksBehind(std::span<const DisplayCode> field);

/// The ways in which words can stand in their field; none for words with an indent of their own,
/// several for words that leave little room.
struct Standing {
  bool centred = false;
  bool left = false;
  bool right = false;

  bool IsAny() const { return centred || left || right; }
  bool Shares(const Standing& other) const {
    return (centred && other.centred) || (left && other.left) || (right && other.right);
  }
};

/// How the words of a field stand in it. A blank more on one side counts as centred.
Standing StandingOf(std::span<const DisplayCode> field);

/// The words of the field moved to stand in one of the ways, centred if that is one of them.
DisplayCodes LaidOut(std::span<const DisplayCode> field, const Standing& standing);

/// Whether the words stand in the middle and not, too, at the start for want of room.
bool StandsCentred(std::span<const DisplayCode> field);

/// The field that holds the words of a text; nothing when it has none, or words in several fields
/// ("Tube þþ Pod"), where each has its own place.
std::optional<CellRange> FieldOfWords(std::span<const DisplayCode> text);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_LAYOUT_STANDING_H_
