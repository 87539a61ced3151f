#ifndef VENDLINGUA_CORE_LAYOUT_LOOSE_TEXT_H_
#define VENDLINGUA_CORE_LAYOUT_LOOSE_TEXT_H_

#include <cstddef>
#include <span>
#include <vector>

#include "core/document/display_code.h"
#include "core/layout/cell_range.h"

namespace vendlingua {

/// A text whose placeholders stand in an order, but in no columns yet: what a translator works on.
class LooseText {
 public:
  LooseText() = default;
  /// The text of a message.
  explicit LooseText(std::span<const DisplayCode> cells) { Append(cells); }

  /// Appends characters; neighbouring placeholder codes among them are one placeholder.
  void Append(std::span<const DisplayCode> codes);

  /// Appends one placeholder of `cells` cells; of 0 cells it is as wide as the board has it.
  void AppendPlaceholder(std::size_t cells);

  /// What stands before, between and behind the placeholders: one more than there are of them.
  const std::vector<DisplayCodes>& parts() const { return parts_; }

  /// Whether it has the placeholders of `board` in number and size, which are the cells that the
  /// board fills.
  bool Matches(std::span<const CellRange> board) const;

  /// The codes one behind the other, without the blanks at the end.
  DisplayCodes AsItStands() const;

  /// The same without the placeholders.
  DisplayCodes WithoutPlaceholders() const;

 private:
  std::vector<DisplayCodes> parts_{1};
  std::vector<std::size_t> placeholders_;  // cells
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_LAYOUT_LOOSE_TEXT_H_
