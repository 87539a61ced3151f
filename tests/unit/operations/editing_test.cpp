#include "unit/operations/editing_test.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::MesEditingTest;

TEST_F(MesEditingTest, ShowsEveryCharacterOfTheOriginInItsCell) {
  Show(1);
  EXPECT_EQ(Captions(6), "Nr. \xFE\xFE");
}

TEST_F(MesEditingTest, DarkensTheCellsOfPlaceholders) {
  Show(1);
  EXPECT_EQ(Backgrounds(6), "ppppdd");
}

TEST_F(MesEditingTest, LightensTheCellsAgainForTheNextMessage) {
  Show(1);
  Show(0);
  EXPECT_EQ(Backgrounds(6), "pppppp");
}

TEST_F(MesEditingTest, ShowsTheDestinationWithoutTrailingBlanks) {
  Show(0);
  EXPECT_EQ(EditBox(), "Test");
}

// What stands in the edit box would be stored into the message that is shown.
TEST_F(MesEditingTest, ClearsTheEditBoxForABlankDestination) {
  set_.DestText[1] = DisplayText();
  Show(0);
  Show(1);
  EXPECT_EQ(EditBox(), "");
}

TEST_F(MesEditingTest, ShowsBlanksForThePlaceholdersOfTheDestination) {
  set_.DestText[1] = DisplayText(Codes("\xFE\xFE of "));
  Show(1);
  EXPECT_EQ(EditBox(), "   of");
  Show(0);
  set_.DestText[1] = DisplayText(Codes("No. \xFE\xFE"));
  Show(1);
  EXPECT_EQ(EditBox(), "No.");
}

TEST_F(MesEditingTest, ShowsNoMoreOfTheDestinationThanTheMessageWidth) {
  set_.DestText[0] = DisplayText(Codes("123456789"));
  Show(0);
  EXPECT_EQ(EditBox(), "123456");
}

TEST_F(MesEditingTest, UsesTwentyCellsForMessagesOfTwentyCharacters) {
  set_.LastCol = 19;
  set_.OriginText[0] = DisplayText(Codes("abcdefghijklmnopqrst"));
  Show(0);
  EXPECT_EQ(Captions(20), "abcdefghijklmnopqrst");
}

TEST_F(MesEditingTest, ShowsTheFirstTwentyCellsOfWiderMessages) {
  set_.LastCol = 39;
  set_.OriginText[0] = DisplayText(Codes("abcdefghijklmnopqrstuvwxyz"));
  Show(0);
  EXPECT_EQ(Captions(20), "abcdefghijklmnopqrst");
}

TEST_F(MesEditingTest, MarksTheLanguageNameMessageWhileADestinationIsOpen) {
  Show(2);
  EXPECT_TRUE(view().Label9Visible);
  Show(1);
  EXPECT_FALSE(view().Label9Visible);
}

TEST_F(MesEditingTest, MarksNoMessageWithoutADestination) {
  set_.phase = Phase::kOriginChosen;
  Show(2);
  EXPECT_FALSE(view().Label9Visible);
}

TEST_F(MesEditingTest, LaysTheViewOutForTheDimensionsOfTheSet) {
  EXPECT_EQ(view().HScroll1.max, 2);
  EXPECT_EQ(view().Text1.max_length, 7U);
  EXPECT_EQ(view().label_width, 1136);  // 186 x 5 + 206
}

TEST_F(MesEditingTest, PadsAShortTextWithBlanksWhenItIsStored) {
  Show(0);
  editing_.ChangeText(Codes("abc"));
  editing_.StoreCurrentMessage();
  EXPECT_EQ(Destination(0), Field("abc"));
  Show(0);
  EXPECT_EQ(EditBox(), "abc");
}

TEST_F(MesEditingTest, StoresBlanksForAnEmptyEditBox) {
  Show(0);
  editing_.ChangeText({});
  editing_.StoreCurrentMessage();
  EXPECT_EQ(Destination(0), Field(""));
}

TEST_F(MesEditingTest, RestoresPlaceholdersThatWereTypedOver) {
  Show(1);
  editing_.ChangeText(Codes("abcdef"));
  editing_.StoreCurrentMessage();
  EXPECT_EQ(Destination(1), Field("abcd\xFE\xFE"));
}

TEST_F(MesEditingTest, PutsPlaceholdersBehindAShortText) {
  Show(1);
  editing_.ChangeText(Codes("a"));
  editing_.StoreCurrentMessage();
  EXPECT_EQ(Destination(1), Field("a   \xFE\xFE"));
}

TEST_F(MesEditingTest, KeepsAPlaceholderThatTheOriginDoesNotHave) {
  Show(0);
  editing_.ChangeText(Codes("a\xFE"));
  editing_.StoreCurrentMessage();
  EXPECT_EQ(Destination(0), Field("a\xFE"));
}

TEST_F(MesEditingTest, RestoresPlaceholdersBehindTheTwentiethCell) {
  set_.LastCol = 29;
  set_.OriginText[0] = DisplayText(Codes(std::string(25, '\xFE')));
  Show(0);
  editing_.ChangeText(Codes(std::string(30, 'x')));
  editing_.StoreCurrentMessage();
  EXPECT_EQ(Destination(0), Field(std::string(25, '\xFE') + std::string(5, 'x')));
}

TEST_F(MesEditingTest, StoresTheMessageThatIsLeftAndShowsTheNext) {
  Show(0);
  editing_.ChangeText(Codes("new"));
  editing_.GoTo(1);
  EXPECT_EQ(Destination(0), Field("new"));
  EXPECT_EQ(view().Label6, 1);
  EXPECT_EQ(view().HScroll1.value, 1);
  EXPECT_EQ(Captions(6), "Nr. \xFE\xFE");
  EXPECT_EQ(EditBox(), "No.");
}

TEST_F(MesEditingTest, RestoresThePlaceholdersOfTheMessageThatIsLeft) {
  Show(1);
  editing_.ChangeText(Codes("123456"));
  editing_.GoTo(0);
  EXPECT_EQ(Destination(1), Field("1234\xFE\xFE"));
}

TEST_F(MesEditingTest, DoesNotMarkTheSetChangedForScrolling) {
  Show(0);
  editing_.GoTo(1);
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(MesEditingTest, ChangesNothingWhenScrolledWithoutAnOrigin) {
  set_.phase = Phase::kFileOpen;
  editing_.GoTo(1);
  EXPECT_EQ(view().Label6, 0);
  EXPECT_EQ(view().HScroll1.value, 0);
  EXPECT_FALSE(view().HScroll1.enabled);
  EXPECT_EQ(Destination(0), Field("Test"));
}

TEST_F(MesEditingTest, NeverLeavesTheSetWhenItIsScrolled) {
  editing_.GoTo(3);
  EXPECT_EQ(view().Label6, 2);
}

TEST_F(MesEditingTest, StoresNothingWithoutADestination) {
  set_.phase = Phase::kOriginChosen;
  set_.DestText[1] = DisplayText(Codes("abcdef"));
  Show(1);
  editing_.StoreCurrentMessage();
  editing_.GoTo(0);
  EXPECT_EQ(Destination(1), Field("abcdef"));
  EXPECT_EQ(set_.Modified, kFalse);
}

// Saving would change the file.
TEST_F(MesEditingTest, MarksTheSetChangedForScrollingOverATextThatLacksAPlaceholder) {
  set_.DestText[1] = DisplayText(Codes("abcdef"));
  Show(1);
  editing_.GoTo(0);
  EXPECT_EQ(Destination(1), Field("abcd\xFE\xFE"));
  EXPECT_EQ(set_.Modified, kTrue);
}

TEST_F(MesEditingTest, StoresATextAsSoonAsItIsEdited) {
  Show(1);
  editing_.ChangeText(Codes("abcdef"));
  EXPECT_EQ(Destination(1), Field("abcd\xFE\xFE"));
  EXPECT_EQ(EditBox(), "abcdef");
}

TEST_F(MesEditingTest, CutsALongerTextToTheMessageWidthAndSaysSo) {
  workspace_.ui_text.Set(60, "text 60");
  editing_.ChangeText(Codes("1234567"));
  EXPECT_EQ(EditBox(), "123456");
  EXPECT_EQ(view().status, "text 60");
}

TEST_F(MesEditingTest, KeepsATextOfTheMessageWidth) {
  workspace_.ui_text.Set(60, "text 60");
  editing_.ChangeText(Codes("123456"));
  EXPECT_EQ(EditBox(), "123456");
  EXPECT_EQ(view().status, "");
}

TEST_F(MesEditingTest, KeepsTheBlanksAtTheEndWhileTheyAreTyped) {
  editing_.ChangeText(Codes("ab  "));
  EXPECT_EQ(EditBox(), "ab  ");
}

TEST_F(MesEditingTest, MarksTheSetChangedForAKeyWhileADestinationIsOpen) {
  editing_.KeyPressed();
  EXPECT_EQ(set_.Modified, kTrue);
}

TEST_F(MesEditingTest, DoesNotMarkTheSetChangedForAKeyWithoutADestination) {
  set_.phase = Phase::kOriginChosen;
  editing_.KeyPressed();
  EXPECT_EQ(set_.Modified, kFalse);
}

class BoardCellTest : public MesEditingTest {
 protected:
  BoardCellTest() {
    workspace_.ui_text.Set(static_cast<std::size_t>(UiTextId::kBoardWritesHere), "the board's");
    Show(1);
  }

  // What the status says when "No." becomes `text`; the board writes in the fifth and sixth cell.
  std::string StatusOf(std::string_view text) {
    window_.status.clear();
    editing_.ChangeText(Codes(text));
    return window_.status;
  }
};

TEST_F(BoardCellTest, TypingThereIsTold) { EXPECT_EQ(StatusOf("No. X"), "the board's"); }

TEST_F(BoardCellTest, BlanksThereAreNot) { EXPECT_EQ(StatusOf("No.  "), ""); }

TEST_F(BoardCellTest, TypingBesideThemIsNot) { EXPECT_EQ(StatusOf("Nr. "), ""); }

TEST_F(BoardCellTest, WhatStandsThereIsToldOnce) {
  StatusOf("No. X");
  EXPECT_EQ(StatusOf("Nr. X"), "");
  EXPECT_EQ(StatusOf("Nr. XY"), "the board's");
}

}  // namespace
}  // namespace vendlingua
