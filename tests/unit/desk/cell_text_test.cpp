#include "core/desk/cell_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;
using Mode = CellText::Mode;

// "#" is a cell of the board.
CellText Cells(std::string_view cells) {
  DisplayCodes codes = Codes(cells);
  std::vector<bool> board;
  for (DisplayCode& code : codes) {
    board.push_back(code == '#');
    code = code == '#' ? kPlaceholder : code;
  }
  return {codes, board};
}

std::string Shown(const CellText& text) {
  std::string shown = test::Text(text.cells());
  std::replace(shown.begin(), shown.end(), static_cast<char>(kPlaceholder), '#');
  return shown;
}

TEST(CellText, InsertingPushesTheRestOfTheFieldOnly) {
  CellText text = Cells("AC  ##D ");
  const auto typed = text.Type(1, Codes("B"), Mode::kInsert);
  EXPECT_EQ(Shown(text), "ABC ##D ");
  EXPECT_EQ(typed.caret, 2U);
  EXPECT_TRUE(typed.fits);
}

TEST(CellText, InsertingIntoAFullFieldIsRefused) {
  CellText text = Cells("ABC##D ");
  const auto typed = text.Type(0, Codes("X"), Mode::kInsert);
  EXPECT_EQ(Shown(text), "ABC##D ");
  EXPECT_EQ(typed.caret, 0U);
  EXPECT_FALSE(typed.fits);
}

TEST(CellText, OverwritingMovesNothing) {
  CellText text = Cells("ABC##D ");
  EXPECT_TRUE(text.Type(1, Codes("X"), Mode::kOverwrite).fits);
  EXPECT_EQ(Shown(text), "AXC##D ");
}

TEST(CellText, TypingJumpsOverTheCellsOfTheBoard) {
  CellText text = Cells("A##  ");
  const auto typed = text.Type(1, Codes("BC"), Mode::kInsert);
  EXPECT_EQ(Shown(text), "A##BC");
  EXPECT_EQ(typed.caret, 5U);
}

TEST(CellText, NothingIsTypedBehindTheLastCell) {
  for (const Mode mode : {Mode::kInsert, Mode::kOverwrite}) {
    CellText text = Cells("AB");
    EXPECT_FALSE(text.Type(2, Codes("C"), mode).fits);
    EXPECT_EQ(Shown(text), "AB");
  }
}

TEST(CellText, NothingIsTypedWhereTheBoardFillsTheRest) {
  CellText text = Cells("A###");
  EXPECT_FALSE(text.Type(1, Codes("B"), Mode::kInsert).fits);
  EXPECT_EQ(Shown(text), "A###");
}

TEST(CellText, APastedTextKeepsItsColumns) {
  CellText text = Cells("    ## ");
  DisplayCodes pasted = Cells("AB  ##C").Text();
  pasted[4] = pasted[5] = kPlaceholder;
  EXPECT_TRUE(text.Type(0, pasted, Mode::kOverwrite).fits);
  EXPECT_EQ(Shown(text), "AB  ##C");
}

TEST(CellText, ErasingPullsTheRestOfTheFieldOnly) {
  CellText text = Cells("ABC##D");
  EXPECT_EQ(text.Erase(0, 1), 0U);
  EXPECT_EQ(Shown(text), "BC ##D");
}

TEST(CellText, ErasingACellOfTheBoardMovesTheCaretBeforeThem) {
  CellText text = Cells("AB##C");
  EXPECT_EQ(text.Erase(3, 4), 2U);
  EXPECT_EQ(Shown(text), "AB##C");
}

TEST(CellText, ErasingEverythingLeavesTheBoardsCells) {
  CellText text = Cells("AB##CD");
  EXPECT_EQ(text.Erase(0, 6), 0U);
  EXPECT_EQ(Shown(text), "  ##  ");
}

TEST(CellText, TheCaretStandsBeforeOrBehindTheBoardsCells) {
  const CellText text = Cells("A###B");
  EXPECT_EQ(text.Forward(1), 1U);
  EXPECT_EQ(text.Forward(2), 4U);
  EXPECT_EQ(text.Backward(3), 1U);
  EXPECT_EQ(text.Backward(4), 4U);
}

TEST(CellText, CellsOfTheBoardAtTheEndsHoldNoCaret) {
  EXPECT_EQ(Cells("###").Forward(1), 3U);
  EXPECT_EQ(Cells("###").Backward(2), 0U);
}

TEST(CellText, ItsTextIsThatOfTheEditBox) {
  EXPECT_EQ(Cells("AB##C  ").Text(), Codes("AB  C"));
  EXPECT_EQ(Cells("AB####").Text(), Codes("AB"));
}

TEST(CellText, HoldsTheDestinationOfASet) {
  MessageSet set;
  set.LastCol = 3;
  set.CurrentFileType = kMesType;
  set.OriginText[2] = DisplayText(Codes("A\xFE\xFE"));
  set.DestText[2] = DisplayText(Codes("B\xFE\xFE!"));
  const CellText text(set, 2);
  EXPECT_EQ(test::Text(text.cells()), "B\xFE\xFE!");
  EXPECT_FALSE(text.BoardFills(0));
  EXPECT_TRUE(text.BoardFills(2));
  EXPECT_FALSE(text.BoardFills(3));
}

}  // namespace
}  // namespace vendlingua
