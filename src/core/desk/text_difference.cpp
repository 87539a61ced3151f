#include "core/desk/text_difference.h"

#include <algorithm>
#include <cstddef>

namespace vendlingua {
namespace {

// How many cells two texts have in common behind each pair of places in them.
class CommonCells {
 public:
  CommonCells(std::span<const DisplayCode> a, std::span<const DisplayCode> b)
      : columns_(b.size() + 1), counts_((a.size() + 1) * columns_) {
    for (std::size_t i = a.size(); i-- > 0;) {
      for (std::size_t j = b.size(); j-- > 0;) {
        At(i, j) = a[i] == b[j] ? At(i + 1, j + 1) + 1 : std::max(At(i + 1, j), At(i, j + 1));
      }
    }
  }

  std::size_t& At(std::size_t i, std::size_t j) { return counts_[i * columns_ + j]; }

 private:
  std::size_t columns_;
  std::vector<std::size_t> counts_;
};

void Add(std::vector<CellRun>& runs, std::size_t cell) {
  if (!runs.empty() && runs.back().End() == cell) {
    ++runs.back().count;
  } else {
    runs.push_back({cell, 1});
  }
}

}  // namespace

std::vector<CellRun> DifferenceFrom(std::span<const DisplayCode> other,
                                    std::span<const DisplayCode> text) {
  CommonCells common(text, other);
  std::vector<CellRun> runs;
  std::size_t j = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    while (j < other.size() && text[i] != other[j] && common.At(i, j + 1) == common.At(i, j)) {
      ++j;
    }
    if (j < other.size() && text[i] == other[j]) {
      ++j;
    } else if (text[i] != kBlank) {
      Add(runs, i);
    }
  }
  return runs;
}

}  // namespace vendlingua
