#include "unit/operations/editing_test.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::MesEditingTest;
using test::MsxEditingTest;

// A cell is 3660 / 6 = 610 twips wide.
TEST_F(MesEditingTest, DropsACharacterIntoTheCellUnderThePointer) {
  editing_.ChangeText(Codes("abcdef"));
  editing_.Drop('X', 609, kBoxWidth);
  EXPECT_EQ(EditBox(), "Xbcdef");
  editing_.Drop('Y', 610, kBoxWidth);
  EXPECT_EQ(EditBox(), "XYcdef");
  editing_.Drop('Z', 3659, kBoxWidth);
  EXPECT_EQ(EditBox(), "XYcdeZ");
}

TEST_F(MesEditingTest, DropsACharacterRightOfTheLastCellIntoTheLastCell) {
  editing_.ChangeText(Codes("abcdef"));
  editing_.Drop('X', 100000, kBoxWidth);
  EXPECT_EQ(EditBox(), "abcdeX");
}

// The width of 228 is cut from 228.75, so the cells end 12 twips before the box does.
TEST_F(MesEditingTest, DividesTheBoxInWholeUnits) {
  set_.LastCol = 15;
  editing_.ChangeText(Codes("0123456789abcdef"));
  editing_.Drop('X', 227, kBoxWidth);
  editing_.Drop('Y', 228, kBoxWidth);
  editing_.Drop('Z', 3648, kBoxWidth);
  EXPECT_EQ(EditBox(), "XY23456789abcdeZ");
}

TEST_F(MesEditingTest, DropsACharacterLeftOfTheBoxIntoTheFirstCell) {
  editing_.ChangeText(Codes("abcdef"));
  editing_.Drop('X', -5, kBoxWidth);
  EXPECT_EQ(EditBox(), "Xbcdef");
}

TEST_F(MesEditingTest, DropsACharacterOnABoxTooNarrowForItsCells) {
  editing_.ChangeText(Codes("abcdef"));
  editing_.Drop('X', 2, 3);
  EXPECT_EQ(EditBox(), "abXdef");
}

TEST_F(MesEditingTest, PadsAShortTextUpToTheDroppedCharacter) {
  editing_.ChangeText(Codes("a"));
  editing_.Drop('X', 3 * 610, kBoxWidth);
  EXPECT_EQ(EditBox(), "a  X");
}

TEST_F(MesEditingTest, LosesTrailingBlanksForADrop) {
  editing_.ChangeText(Codes("ab    "));
  editing_.Drop('X', 0, kBoxWidth);
  EXPECT_EQ(EditBox(), "Xb");
}

TEST_F(MesEditingTest, MarksTheSetChangedForADrop) {
  editing_.Drop('X', 0, kBoxWidth);
  EXPECT_EQ(set_.Modified, kTrue);
}

TEST_F(MesEditingTest, CopiesTheOriginWithItsPlaceholders) {
  Show(1);
  editing_.CopyOrigin();
  EXPECT_EQ(EditBox(), "Nr. \xFE\xFE");
  EXPECT_EQ(set_.Modified, kTrue);
}

TEST_F(MesEditingTest, CopiesTheOriginWithoutTrailingBlanks) {
  Show(0);
  editing_.CopyOrigin();
  EXPECT_EQ(EditBox(), "Prova");
}

TEST_F(MsxEditingTest, LeavesTheCellsEmptyAndDarkWhereTheBuiltInTableHasPlaceholders) {
  Show(6);  // " Piatto: nr. þþþ" in the built-in table
  EXPECT_EQ(Captions(16), " Plate: no. 1___");
  EXPECT_EQ(Backgrounds(16), "pppppppppppppddd");
}

TEST_F(MsxEditingTest, ShowsAPlaceholderOfTheOriginWhereTheBuiltInTableHasNone) {
  set_.OriginText[2] = DisplayText(Codes("\xFE"));
  Show(2);
  EXPECT_EQ(Captions(2), "\xFE ");
  EXPECT_EQ(Backgrounds(2), "pp");
}

TEST_F(MsxEditingTest, ForcesNoPlaceholderIntoAStoredText) {
  Show(6);
  editing_.ChangeText(Codes("0123456789abcdef"));
  editing_.StoreCurrentMessage();
  EXPECT_EQ(Destination(6), Field("0123456789abcdef"));
}

TEST_F(MsxEditingTest, CopiesTheOriginWithoutItsEmptyCells) {
  Show(6);
  editing_.CopyOrigin();
  EXPECT_EQ(EditBox(), " Plate: no. 1");
}

// Behind empty cells the rest of the origin closes up.
TEST_F(MsxEditingTest, JoinsTheCaptionsOfTheOriginThatItCopies) {
  set_.OriginText[95] = DisplayText(Codes("123Sugar"));  // "þþþZucchero     "
  Show(95);
  editing_.CopyOrigin();
  EXPECT_EQ(EditBox(), "Sugar");
}

TEST_F(MsxEditingTest, MarksTheMessageTwoBeforeHeaderCount) {
  Show(169);
  EXPECT_TRUE(view().Label9Visible);
  Show(171);
  EXPECT_FALSE(view().Label9Visible);
}

}  // namespace
}  // namespace vendlingua
