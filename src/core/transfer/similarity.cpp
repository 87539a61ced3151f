#include "core/transfer/similarity.h"

#include <algorithm>
#include <bit>

namespace vendlingua {
namespace {

std::size_t PlaceOf(char character) { return static_cast<unsigned char>(character); }

}  // namespace

SimilarityTo::SimilarityTo(std::string_view text)
    : length_(std::min(text.size(), kMostCharacters)) {
  for (std::size_t i = 0; i < length_; ++i) {
    places_.at(PlaceOf(text[i])) |= std::uint64_t{1} << i;
  }
}

// The longest common subsequence, a whole row of the textbook's table in one word (Hyyrö 2004): a
// bit of `free` is 0 where the row goes up by one.
double SimilarityTo::Ratio(std::string_view other) const {
  other = other.substr(0, kMostCharacters);
  const std::size_t characters = length_ + other.size();
  if (characters == 0) {
    return 1;
  }
  std::uint64_t free = ~std::uint64_t{0};
  for (const char character : other) {
    const std::uint64_t hits = free & places_.at(PlaceOf(character));
    free = (free + hits) | (free - hits);
  }
  return 2.0 * std::popcount(~free) / static_cast<double>(characters);
}

}  // namespace vendlingua
