#ifndef VENDLINGUA_CORE_CHECKS_STANDING_H_
#define VENDLINGUA_CORE_CHECKS_STANDING_H_

#include <cstddef>
#include <optional>
#include <span>

#include "core/document/display_code.h"

namespace vendlingua {

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

/// The cells from `first` on between two placeholders, or a placeholder and an end of the text.
struct WordField {
  std::size_t first;
  std::size_t cells;

  bool operator==(const WordField&) const = default;
};

/// The field that holds the words of a text; nothing when it has none, or words in several fields
/// ("Tube þþ Pod"), where each has its own place.
std::optional<WordField> FieldOfWords(std::span<const DisplayCode> text);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_STANDING_H_
