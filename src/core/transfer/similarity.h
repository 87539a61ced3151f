#ifndef VENDLINGUA_CORE_TRANSFER_SIMILARITY_H_
#define VENDLINGUA_CORE_TRANSFER_SIMILARITY_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vendlingua {

/// Compares texts with one text: how much of both is the same, from 0 to 1. It is twice the number
/// of characters that they have in common, in the same order, by the number of all their
/// characters.
class SimilarityTo {
 public:
  static constexpr std::size_t kMostCharacters = 64;

  /// Of a longer text the first 64 characters count.
  explicit SimilarityTo(std::string_view text);

  /// Two empty texts are the same.
  double Ratio(std::string_view other) const;

 private:
  std::size_t length_;
  std::array<std::uint64_t, 256> places_{};  // bit i: the character stands at place i of the text
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_TRANSFER_SIMILARITY_H_
