#ifndef VENDLINGUA_CORE_DOCUMENT_DISPLAY_TEXT_H_
#define VENDLINGUA_CORE_DOCUMENT_DISPLAY_TEXT_H_

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "core/document/display_code.h"

namespace vendlingua {

/// One message text of the set: a field of 40 cells. An assigned text stands left-aligned, padded
/// with blanks or cut at 40; reading yields all 40 cells, of which a message uses the first
/// `LastCol` + 1.
class DisplayText {
 public:
  static constexpr std::size_t kCells = 40;

  /// 40 blanks, as an emptied or never assigned element holds them.
  DisplayText() { cells_.fill(kBlank); }

  explicit DisplayText(std::span<const DisplayCode> codes) : DisplayText() {
    std::copy_n(codes.begin(), std::min(codes.size(), kCells), cells_.begin());
  }

  DisplayCode operator[](std::size_t cell) const { return cells_.at(cell); }

  std::span<const DisplayCode, kCells> Cells() const { return cells_; }

  /// The first `count` cells, at most 40.
  std::span<const DisplayCode> First(std::size_t count) const {
    return Cells().first(std::min(count, kCells));
  }

  bool operator==(const DisplayText&) const = default;

 private:
  std::array<DisplayCode, kCells> cells_;
};

/// The texts of one language by the numbers of their messages.
using MessageTexts = std::vector<DisplayText>;

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DOCUMENT_DISPLAY_TEXT_H_
