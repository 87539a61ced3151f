#include "core/layout/standing.h"

#include <gmock/gmock.h>

#include <string>
#include <string_view>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::Text;

// "clr": the ways in which the words stand, by their first letters.
std::string Ways(std::string_view field) {
  const Standing standing = StandingOf(Codes(field));
  return std::string(standing.centred ? "c" : "") + (standing.left ? "l" : "") +
         (standing.right ? "r" : "");
}

TEST(StandingTest, TellsTheWaysInWhichWordsStand) {
  EXPECT_EQ(Ways("  ab  "), "c");
  EXPECT_EQ(Ways(" ab  "), "c");
  EXPECT_EQ(Ways("ab   "), "l");
  EXPECT_EQ(Ways("   ab"), "r");
  EXPECT_EQ(Ways(" ab"), "cr");
  EXPECT_EQ(Ways("ab "), "cl");
  EXPECT_EQ(Ways("ab"), "clr");
  EXPECT_EQ(Ways(" ab   "), "");
}

TEST(StandingTest, LaysWordsOut) {
  const auto laid_out = [](std::string_view field, const Standing& standing) {
    return Text(LaidOut(Codes(field), standing));
  };
  EXPECT_EQ(laid_out("ab cd   ", {.centred = true}), " ab cd  ");
  EXPECT_EQ(laid_out("   ab cd", {.left = true}), "ab cd   ");
  EXPECT_EQ(laid_out("ab cd   ", {.right = true}), "   ab cd");
  EXPECT_EQ(laid_out("ab    ", {.centred = true, .left = true}), "  ab  ");
}

TEST(StandsCentred, AsksForBlanksOnBothSidesThatDifferByOneAtMost) {
  EXPECT_TRUE(StandsCentred(Codes("  ab  ")));
  EXPECT_TRUE(StandsCentred(Codes(" ab  ")));
  EXPECT_TRUE(StandsCentred(Codes("  ab ")));
  EXPECT_TRUE(StandsCentred(Codes(" ab")));
  EXPECT_FALSE(StandsCentred(Codes("ab ")));
  EXPECT_FALSE(StandsCentred(Codes("abcd")));
  EXPECT_FALSE(StandsCentred(Codes("   ab ")));
  EXPECT_FALSE(StandsCentred(Codes(" ab   ")));
  EXPECT_FALSE(StandsCentred(Codes("    ")));
}

TEST(FieldOfWordsTest, IsWhatPlaceholdersLeave) {
  EXPECT_EQ(FieldOfWords(Codes("ab  \xFE\xFE")), (CellRange{0, 4}));
  EXPECT_EQ(FieldOfWords(Codes("\xFE\xFE\xFE ab")), (CellRange{3, 3}));
  EXPECT_EQ(FieldOfWords(Codes("\xFE ab \xFE  ")), (CellRange{1, 4}));
  EXPECT_EQ(FieldOfWords(Codes("ab cd")), (CellRange{0, 5}));
}

TEST(FieldOfWordsTest, IsNoneWithoutWordsOrWithSeveral) {
  EXPECT_EQ(FieldOfWords(Codes("   \xFE ")), std::nullopt);
  EXPECT_EQ(FieldOfWords(Codes("")), std::nullopt);
  EXPECT_EQ(FieldOfWords(Codes("ab\xFE cd")), std::nullopt);
}

}  // namespace
}  // namespace vendlingua
