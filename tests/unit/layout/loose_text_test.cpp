#include "core/layout/loose_text.h"

#include <gmock/gmock.h>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::Text;
using ::testing::ElementsAre;

// The board fills cells 9 and 11 to 16.
const std::vector<CellRange> kCreditBoard = {{8, 1}, {10, 6}};

LooseText LooseFrom(std::string_view text) { return LooseText(Codes(text)); }

TEST(LooseText, IsDividedAtItsPlaceholders) {
  EXPECT_THAT(LooseFrom("a \xFE"
                        "b\xFE\xFE")
                  .parts(),
              ElementsAre(Codes("a "), Codes("b"), Codes("")));
  EXPECT_THAT(LooseFrom("").parts(), ElementsAre(Codes("")));
}

TEST(LooseText, MatchesABoardWithPlaceholdersOfTheSameNumberAndSize) {
  EXPECT_TRUE(LooseFrom("Kredit \xFE \xFE\xFE\xFE\xFE\xFE\xFE").Matches(kCreditBoard));
  EXPECT_TRUE(LooseFrom("Kredit").Matches({}));
  EXPECT_FALSE(LooseFrom("Kredit \xFE \xFE\xFE\xFE\xFE\xFE").Matches(kCreditBoard));
  EXPECT_FALSE(LooseFrom("Kredit \xFE").Matches(kCreditBoard));
  EXPECT_FALSE(LooseFrom("Kredit").Matches(kCreditBoard));
  EXPECT_FALSE(LooseFrom("Kredit \xFE").Matches({}));
}

TEST(LooseText, KeepsPlaceholdersApartBetweenWhichNothingStands) {
  LooseText text = LooseFrom("Kredit");
  text.AppendPlaceholder(1);
  text.AppendPlaceholder(6);
  EXPECT_TRUE(text.Matches(kCreditBoard));
}

TEST(LooseText, TakesTheSizeOfAPlaceholderFromTheBoardWhereItIsNotKnown) {
  LooseText text = LooseFrom("Kredit");
  text.AppendPlaceholder(0);
  text.AppendPlaceholder(6);
  EXPECT_TRUE(text.Matches(kCreditBoard));
}

TEST(LooseText, StandsCellByCell) {
  EXPECT_EQ(Text(LooseFrom(" a \xFE"
                           "b\xFE\xFE  ")
                     .AsItStands()),
            " a \xFE"
            "b\xFE\xFE");
  EXPECT_EQ(Text(LooseFrom(" a \xFE"
                           "b\xFE\xFE")
                     .WithoutPlaceholders()),
            " a b");
}

}  // namespace
}  // namespace vendlingua
