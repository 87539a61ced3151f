#ifndef VENDLINGUA_CORE_EXCHANGE_TEXT_LAYOUT_H_
#define VENDLINGUA_CORE_EXCHANGE_TEXT_LAYOUT_H_

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "core/document/display_code.h"
#include "core/exchange/cell_range.h"

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

/// Lays a text out that matches `board`: its placeholders are in the cells that the board fills,
/// and what stands before one is padded with blanks to its column. A message has `width` cells.
Layout LayOut(const LooseText& text, std::span<const CellRange> board, std::size_t width);

/// Whether a message stands in the middle of its cells: blanks before it, and as many, or one more
/// or less, behind it.
bool StandsCentred(std::span<const DisplayCode> cells);

/// A text, without the blanks around it, in the middle of `width` cells; half a blank to the left.
Layout Centred(std::span<const DisplayCode> text, std::size_t width);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_EXCHANGE_TEXT_LAYOUT_H_
