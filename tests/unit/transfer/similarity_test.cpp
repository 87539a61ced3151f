#include "core/transfer/similarity.h"

#include <gmock/gmock.h>

#include <string>

namespace vendlingua {
namespace {

using testing::DoubleEq;

double RatioOf(const std::string& a, const std::string& b) { return SimilarityTo(a).Ratio(b); }

TEST(SimilarityTo, IsOneForTheSameText) {
  EXPECT_THAT(RatioOf("No water", "No water"), DoubleEq(1));
  EXPECT_THAT(RatioOf("", ""), DoubleEq(1));
}

TEST(SimilarityTo, IsZeroForTextsWithoutACommonCharacter) {
  EXPECT_THAT(RatioOf("abc", "xyz"), DoubleEq(0));
  EXPECT_THAT(RatioOf("abc", ""), DoubleEq(0));
  EXPECT_THAT(RatioOf("", "abc"), DoubleEq(0));
}

TEST(SimilarityTo, CountsWhatBothHaveInTheSameOrder) {
  // "ello" of 5 + 6 characters.
  EXPECT_THAT(RatioOf("hello", "yellow"), DoubleEq(8.0 / 11));
  // "Wter" of 5 + 4.
  EXPECT_THAT(RatioOf("Water", "Wter"), DoubleEq(8.0 / 9));
  // Either one of two that changed places.
  EXPECT_THAT(RatioOf("ab", "ba"), DoubleEq(0.5));
  // "MJAU" of 7 + 6, the textbook's example.
  EXPECT_THAT(RatioOf("XMJYAUZ", "MZJAWXU"), DoubleEq(8.0 / 14));
}

TEST(SimilarityTo, IsTheSameBothWays) {
  for (const auto& [a, b] : {std::pair("Erogazione", "Erogazioni"), std::pair("aab", "ab"),
                             std::pair("Solo SNACK", "SNACK solo")}) {
    EXPECT_THAT(RatioOf(a, b), DoubleEq(RatioOf(b, a))) << a << " " << b;
  }
}

TEST(SimilarityTo, ServesManyTexts) {
  const SimilarityTo similarity("Prova acqua");
  EXPECT_THAT(similarity.Ratio("Prova acqua"), DoubleEq(1));
  EXPECT_THAT(similarity.Ratio("xyz"), DoubleEq(0));
  EXPECT_THAT(similarity.Ratio("Prova acqua"), DoubleEq(1));
}

TEST(SimilarityTo, TakesAllBytes) {
  const std::string bytes = {'\xFE', '\0', '\xFF', '\x80'};
  EXPECT_THAT(RatioOf(bytes, bytes), DoubleEq(1));
}

TEST(SimilarityTo, TakesTextsOfAWholeWord) {
  const std::string longest(SimilarityTo::kMostCharacters, 'a');
  EXPECT_THAT(RatioOf(longest, longest), DoubleEq(1));
  EXPECT_THAT(RatioOf(longest + "b", longest + "c"), DoubleEq(1));
}

}  // namespace
}  // namespace vendlingua
