#include "core/desk/replacement.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;

// "#" is a cell of the board. "-" when it does not fit.
std::string Replace(std::string_view cells, const std::vector<Replacement>& replacements) {
  DisplayCodes codes = Codes(cells);
  std::vector<bool> board;
  for (DisplayCode& code : codes) {
    board.push_back(code == '#');
    code = code == '#' ? kPlaceholder : code;
  }
  const auto text = WithReplacements(CellText(codes, board), replacements);
  return text ? test::Text(*text) : "-";
}

TEST(WithReplacements, PutsAShorterTextIn) {
  EXPECT_EQ(Replace("PRICE X", {{{0, 5}, Codes("FEE")}}), "FEE X");
}

TEST(WithReplacements, TakesBlanksForALongerText) {
  EXPECT_EQ(Replace("FEE X  ", {{{0, 3}, Codes("PRICE")}}), "PRICE X");
}

TEST(WithReplacements, RefusesWhatWouldNotFit) {
  EXPECT_EQ(Replace("FEE X ", {{{0, 3}, Codes("PRICE")}}), "-");
}

TEST(WithReplacements, ReplacesEveryHit) {
  EXPECT_EQ(Replace("A A A   ", {{{0, 1}, Codes("BB")}, {{2, 1}, {}}, {{4, 1}, Codes("C")}}),
            "BB  C");
}

TEST(WithReplacements, KeepsTheColumnsBehindTheBoardsCells) {
  EXPECT_EQ(Replace("PRICE ## EUR", {{{0, 5}, Codes("FEE")}}), "FEE      EUR");
  EXPECT_EQ(Replace("FEE   ## EUR", {{{0, 3}, Codes("PRICE")}}), "PRICE    EUR");
}

TEST(WithReplacements, RefusesWhatWouldRunIntoTheBoardsCells) {
  EXPECT_EQ(Replace("FEE ## EUR  ", {{{0, 3}, Codes("PRICE")}}), "-");
}

TEST(WithReplacements, RefusesToTakeACellOfTheBoard) {
  EXPECT_EQ(Replace("A##B", {{{0, 2}, Codes("X")}}), "-");
  EXPECT_EQ(Replace("A##B", {{{1, 1}, Codes("X")}}), "-");
}

TEST(WithReplacements, EmptiesAText) { EXPECT_EQ(Replace("ABC ", {{{0, 3}, {}}}), ""); }

}  // namespace
}  // namespace vendlingua
