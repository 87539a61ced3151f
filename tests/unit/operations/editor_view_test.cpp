#include "core/operations/editor_view.h"

#include <gmock/gmock.h>

#include "support/message_files.h"
#include "support/scripted_dialogs.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::Text;
using testing::SizeIs;

constexpr int kBoxWidth = 3660;  // of the edit box, in twips

class EditorViewTest : public testing::Test {
 protected:
  EditorViewTest() { menus_.mnuOrig.enabled = true; }

  void Show(int message) {
    state_.Label6 = message;
    view_.VisMes();
  }

  // What Label5(0..`cells` - 1) shows; "_" for an empty cell.
  std::string Captions(std::size_t cells) const {
    std::string captions;
    for (std::size_t i = 0; i < cells; ++i) {
      captions += static_cast<char>(state_.Label5[i].caption.value_or('_'));
    }
    return captions;
  }

  // "d" for a dark cell, "p" for a pale one.
  std::string Backgrounds(std::size_t cells) const {
    std::string backgrounds;
    for (std::size_t i = 0; i < cells; ++i) {
      backgrounds += state_.Label5[i].dark ? 'd' : 'p';
    }
    return backgrounds;
  }

  std::string EditBox() const { return Text(state_.Text1.text); }

  std::string Destination(std::size_t message) const {
    return Text(set_.DestText.at(message).Cells());
  }

  static std::string Field(std::string text) {
    text.resize(40, ' ');
    return text;
  }

  Workspace workspace_;
  MessageSet& set_ = workspace_.set;
  MenuState& menus_ = workspace_.menus;
  ViewState& state_ = workspace_.view;
  EditorView view_{workspace_};
  test::ScriptedDialogs dialogs_;
};

// Three messages of six cells, of which message 1 has placeholders.
class MesViewTest : public EditorViewTest {
 protected:
  MesViewTest() {
    set_.CurrentFileType = kMesType;
    set_.LastCol = 5;
    set_.LastMsg = 2;
    set_.LangStride = 4;
    set_.HeaderCount = 2;
    set_.OriginText[0] = DisplayText(Codes("Prova "));
    set_.OriginText[1] = DisplayText(Codes("Nr. \xFE\xFE"));
    set_.OriginText[2] = DisplayText(Codes("Lingua"));
    set_.DestText[0] = DisplayText(Codes("Test  "));
    set_.DestText[1] = DisplayText(Codes("No. \xFE\xFE"));
    set_.DestText[2] = DisplayText(Codes("Engl. "));
  }
};

class MsxViewTest : public EditorViewTest {
 protected:
  MsxViewTest() {
    set_.CurrentFileType = kMsxType;
    set_.LastCol = 15;
    set_.LastMsg = 454;
    set_.LangStride = 455;
    set_.HeaderCount = 171;
    set_.LoadDefaultMessages();
    set_.OriginText[6] = DisplayText(Codes(" Plate: no. 1234"));
    set_.DestText[6] = DisplayText(Codes(" Teller Nr. \xFE\xFE\xFE"));
  }
};

TEST_F(MesViewTest, ShowsEveryCharacterOfTheOriginInItsCell) {
  Show(1);
  EXPECT_EQ(Captions(6), "Nr. \xFE\xFE");
}

TEST_F(MesViewTest, DarkensTheCellsOfPlaceholders) {
  Show(1);
  EXPECT_EQ(Backgrounds(6), "ppppdd");
}

TEST_F(MesViewTest, LightensTheCellsAgainForTheNextMessage) {
  Show(1);
  Show(0);
  EXPECT_EQ(Backgrounds(6), "pppppp");
}

TEST_F(MesViewTest, ShowsTheDestinationWithoutTrailingBlanks) {
  Show(0);
  EXPECT_EQ(EditBox(), "Test");
}

// What stands in the edit box would be stored into the message that is shown.
TEST_F(MesViewTest, ClearsTheEditBoxForABlankDestination) {
  set_.DestText[1] = DisplayText();
  Show(0);
  Show(1);
  EXPECT_EQ(EditBox(), "");
}

TEST_F(MesViewTest, ShowsBlanksForThePlaceholdersOfTheDestination) {
  set_.DestText[1] = DisplayText(Codes("\xFE\xFE of "));
  Show(1);
  EXPECT_EQ(EditBox(), "   of");
  Show(0);
  set_.DestText[1] = DisplayText(Codes("No. \xFE\xFE"));
  Show(1);
  EXPECT_EQ(EditBox(), "No.");
}

TEST_F(MesViewTest, ShowsNoMoreOfTheDestinationThanTheMessageWidth) {
  set_.DestText[0] = DisplayText(Codes("123456789"));
  Show(0);
  EXPECT_EQ(EditBox(), "123456");
}

TEST_F(MesViewTest, UsesTwentyCellsForMessagesOfTwentyCharacters) {
  set_.LastCol = 19;
  set_.OriginText[0] = DisplayText(Codes("abcdefghijklmnopqrst"));
  Show(0);
  EXPECT_EQ(Captions(20), "abcdefghijklmnopqrst");
}

TEST_F(MesViewTest, ShowsTheFirstTwentyCellsOfWiderMessages) {
  set_.LastCol = 39;
  set_.OriginText[0] = DisplayText(Codes("abcdefghijklmnopqrstuvwxyz"));
  Show(0);
  EXPECT_EQ(Captions(20), "abcdefghijklmnopqrst");
}

TEST_F(MesViewTest, MarksTheLanguageNameMessageWhileADestinationIsOpen) {
  state_.Label8Enabled[1] = true;
  Show(2);
  EXPECT_TRUE(state_.Label9Visible);
  Show(1);
  EXPECT_FALSE(state_.Label9Visible);
}

TEST_F(MesViewTest, MarksNoMessageWithoutADestination) {
  Show(2);
  EXPECT_FALSE(state_.Label9Visible);
}

TEST_F(MesViewTest, LaysTheViewOutForTheDimensionsOfTheSet) {
  view_.VisRef();
  EXPECT_EQ(state_.HScroll1.max, 2);
  EXPECT_EQ(state_.Text1.max_length, 7U);
  EXPECT_EQ(state_.label_width, 1136);  // 186 x 5 + 206
}

TEST_F(MesViewTest, PadsAShortTextWithBlanksWhenItIsStored) {
  Show(0);
  view_.ChangeText(Codes("abc"));
  view_.StoreCurrentMessage();
  EXPECT_EQ(Destination(0), Field("abc"));
  view_.VisMes();
  EXPECT_EQ(EditBox(), "abc");
}

TEST_F(MesViewTest, StoresBlanksForAnEmptyEditBox) {
  Show(0);
  view_.ChangeText({});
  view_.StoreCurrentMessage();
  EXPECT_EQ(Destination(0), Field(""));
}

TEST_F(MesViewTest, RestoresPlaceholdersThatWereTypedOver) {
  Show(1);
  view_.ChangeText(Codes("abcdef"));
  view_.StoreCurrentMessage();
  EXPECT_EQ(Destination(1), Field("abcd\xFE\xFE"));
}

TEST_F(MesViewTest, PutsPlaceholdersBehindAShortText) {
  Show(1);
  view_.ChangeText(Codes("a"));
  view_.StoreCurrentMessage();
  EXPECT_EQ(Destination(1), Field("a   \xFE\xFE"));
}

TEST_F(MesViewTest, KeepsAPlaceholderThatTheOriginDoesNotHave) {
  Show(0);
  view_.ChangeText(Codes("a\xFE"));
  view_.StoreCurrentMessage();
  EXPECT_EQ(Destination(0), Field("a\xFE"));
}

TEST_F(MesViewTest, RestoresPlaceholdersBehindTheTwentiethCell) {
  set_.LastCol = 29;
  set_.OriginText[0] = DisplayText(Codes(std::string(25, '\xFE')));
  Show(0);
  view_.ChangeText(Codes(std::string(30, 'x')));
  view_.StoreCurrentMessage();
  EXPECT_EQ(Destination(0), Field(std::string(25, '\xFE') + std::string(5, 'x')));
}

TEST_F(MesViewTest, StoresTheMessageThatIsLeftAndShowsTheNext) {
  Show(0);
  view_.ChangeText(Codes("new"));
  view_.Scroll(1);
  EXPECT_EQ(Destination(0), Field("new"));
  EXPECT_EQ(state_.Label6, 1);
  EXPECT_EQ(state_.HScroll1.value, 1);
  EXPECT_EQ(Captions(6), "Nr. \xFE\xFE");
  EXPECT_EQ(EditBox(), "No.");
}

TEST_F(MesViewTest, RestoresThePlaceholdersOfTheMessageThatIsLeft) {
  Show(1);
  view_.ChangeText(Codes("123456"));
  view_.Scroll(0);
  EXPECT_EQ(Destination(1), Field("1234\xFE\xFE"));
}

TEST_F(MesViewTest, DoesNotMarkTheSetChangedForScrolling) {
  Show(0);
  view_.Scroll(1);
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(MesViewTest, ChangesNothingWhenScrolledWithoutALoadedSet) {
  Show(0);
  view_.ChangeText(Codes("new"));
  menus_.mnuOrig.enabled = false;
  view_.Scroll(1);
  EXPECT_EQ(state_.Label6, 0);
  EXPECT_EQ(state_.HScroll1.value, 0);
  EXPECT_EQ(EditBox(), "new");
  EXPECT_EQ(Destination(0), Field("Test"));
  EXPECT_EQ(Captions(6), "Prova ");
}

TEST_F(MesViewTest, StoresNothingWithoutALoadedSet) {
  Show(0);
  view_.ChangeText(Codes("new"));
  menus_.mnuOrig.enabled = false;
  view_.StoreCurrentMessage();
  EXPECT_EQ(Destination(0), Field("Test"));
}

TEST_F(MesViewTest, CutsALongerTextToTheMessageWidth) {
  EXPECT_TRUE(view_.ChangeText(Codes("1234567")));
  EXPECT_EQ(EditBox(), "123456");
}

TEST_F(MesViewTest, KeepsATextOfTheMessageWidth) {
  EXPECT_FALSE(view_.ChangeText(Codes("123456")));
  EXPECT_EQ(EditBox(), "123456");
}

TEST_F(MesViewTest, KeepsTheBlanksAtTheEndWhileTheyAreTyped) {
  view_.ChangeText(Codes("ab  "));
  EXPECT_EQ(EditBox(), "ab  ");
}

TEST_F(MesViewTest, MarksTheSetChangedForAKeyWhileADestinationIsOpen) {
  state_.Label8Enabled[1] = true;
  view_.KeyPressed();
  EXPECT_EQ(set_.Modified, kTrue);
}

TEST_F(MesViewTest, DoesNotMarkTheSetChangedForAKeyWithoutADestination) {
  view_.KeyPressed();
  EXPECT_EQ(set_.Modified, kFalse);
}

// A cell is 3660 / 6 = 610 twips wide.
TEST_F(MesViewTest, DropsACharacterIntoTheCellUnderThePointer) {
  view_.ChangeText(Codes("abcdef"));
  view_.Drop('X', 609, kBoxWidth);
  EXPECT_EQ(EditBox(), "Xbcdef");
  view_.Drop('Y', 610, kBoxWidth);
  EXPECT_EQ(EditBox(), "XYcdef");
  view_.Drop('Z', 3659, kBoxWidth);
  EXPECT_EQ(EditBox(), "XYcdeZ");
}

TEST_F(MesViewTest, DropsACharacterRightOfTheLastCellIntoTheLastCell) {
  view_.ChangeText(Codes("abcdef"));
  view_.Drop('X', 100000, kBoxWidth);
  EXPECT_EQ(EditBox(), "abcdeX");
}

// The width of 228 is cut from 228.75, so the cells end 12 twips before the box does.
TEST_F(MesViewTest, DividesTheBoxInWholeUnits) {
  set_.LastCol = 15;
  view_.ChangeText(Codes("0123456789abcdef"));
  view_.Drop('X', 227, kBoxWidth);
  view_.Drop('Y', 228, kBoxWidth);
  view_.Drop('Z', 3648, kBoxWidth);
  EXPECT_EQ(EditBox(), "XY23456789abcdeZ");
}

TEST_F(MesViewTest, DropsACharacterLeftOfTheBoxIntoTheFirstCell) {
  view_.ChangeText(Codes("abcdef"));
  view_.Drop('X', -5, kBoxWidth);
  EXPECT_EQ(EditBox(), "Xbcdef");
}

TEST_F(MesViewTest, DropsACharacterOnABoxTooNarrowForItsCells) {
  view_.ChangeText(Codes("abcdef"));
  view_.Drop('X', 2, 3);
  EXPECT_EQ(EditBox(), "abXdef");
}

TEST_F(MesViewTest, PadsAShortTextUpToTheDroppedCharacter) {
  view_.ChangeText(Codes("a"));
  view_.Drop('X', 3 * 610, kBoxWidth);
  EXPECT_EQ(EditBox(), "a  X");
}

TEST_F(MesViewTest, LosesTrailingBlanksForADrop) {
  view_.ChangeText(Codes("ab    "));
  view_.Drop('X', 0, kBoxWidth);
  EXPECT_EQ(EditBox(), "Xb");
}

TEST_F(MesViewTest, MarksTheSetChangedForADrop) {
  view_.Drop('X', 0, kBoxWidth);
  EXPECT_EQ(set_.Modified, kTrue);
}

TEST_F(MesViewTest, CopiesTheOriginWithItsPlaceholders) {
  Show(1);
  view_.CopyOrigin();
  EXPECT_EQ(EditBox(), "Nr. \xFE\xFE");
  EXPECT_EQ(set_.Modified, kTrue);
}

TEST_F(MesViewTest, CopiesTheOriginWithoutTrailingBlanks) {
  Show(0);
  view_.CopyOrigin();
  EXPECT_EQ(EditBox(), "Prova");
}

TEST_F(MsxViewTest, LeavesTheCellsEmptyAndDarkWhereTheBuiltInTableHasPlaceholders) {
  Show(6);  // " Piatto: nr. þþþ" in the built-in table
  EXPECT_EQ(Captions(16), " Plate: no. 1___");
  EXPECT_EQ(Backgrounds(16), "pppppppppppppddd");
}

TEST_F(MsxViewTest, ShowsAPlaceholderOfTheOriginWhereTheBuiltInTableHasNone) {
  set_.OriginText[2] = DisplayText(Codes("\xFE"));
  Show(2);
  EXPECT_EQ(Captions(2), "\xFE ");
  EXPECT_EQ(Backgrounds(2), "pp");
}

TEST_F(MsxViewTest, ForcesNoPlaceholderIntoAStoredText) {
  Show(6);
  view_.ChangeText(Codes("0123456789abcdef"));
  view_.StoreCurrentMessage();
  EXPECT_EQ(Destination(6), Field("0123456789abcdef"));
}

TEST_F(MsxViewTest, CopiesTheOriginWithoutItsEmptyCells) {
  Show(6);
  view_.CopyOrigin();
  EXPECT_EQ(EditBox(), " Plate: no. 1");
}

// Behind empty cells the rest of the origin closes up.
TEST_F(MsxViewTest, JoinsTheCaptionsOfTheOriginThatItCopies) {
  set_.OriginText[95] = DisplayText(Codes("123Sugar"));  // "þþþZucchero     "
  Show(95);
  view_.CopyOrigin();
  EXPECT_EQ(EditBox(), "Sugar");
}

TEST_F(MsxViewTest, MarksTheMessageTwoBeforeHeaderCount) {
  state_.Label8Enabled[1] = true;
  Show(169);
  EXPECT_TRUE(state_.Label9Visible);
  Show(171);
  EXPECT_FALSE(state_.Label9Visible);
}

class AddMessageTest : public MesViewTest {
 protected:
  AddMessageTest() {
    workspace_.ui_text.Set(40, "text 40");
    state_.Text1.enabled = true;
  }

  bool OfferedAt(int message) {
    view_.Scroll(message);
    return state_.Command2Visible;
  }
};

TEST_F(AddMessageTest, IsOfferedAtTheLastMessage) {
  EXPECT_TRUE(OfferedAt(2));
  EXPECT_FALSE(OfferedAt(1));
  EXPECT_TRUE(OfferedAt(2));
}

TEST_F(AddMessageTest, IsNotOfferedAtMessageZero) {
  set_.LastMsg = 0;
  EXPECT_FALSE(OfferedAt(0));
}

TEST_F(AddMessageTest, IsNotOfferedWhenTheLanguageHasNoSlotLeft) {
  set_.LangStride = 2;
  EXPECT_FALSE(OfferedAt(2));
}

TEST_F(AddMessageTest, IsNotOfferedWhenNoMoreMessagesCanBeEdited) {
  set_.LangStride = 1000;
  set_.LastMsg = 511;
  EXPECT_TRUE(OfferedAt(511));
  set_.LastMsg = 512;
  EXPECT_FALSE(OfferedAt(512));
}

TEST_F(AddMessageTest, IsNotOfferedWhileTheEditBoxIsDisabled) {
  state_.Text1.enabled = false;
  EXPECT_FALSE(OfferedAt(2));
}

TEST_F(AddMessageTest, IsLeftAsItIsInAMsxSet) {
  set_.CurrentFileType = kMsxType;
  set_.LoadDefaultMessages();
  EXPECT_FALSE(OfferedAt(2));
  state_.Command2Visible = true;
  EXPECT_TRUE(OfferedAt(1));
}

TEST_F(AddMessageTest, AsksBeforeItAdds) {
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  view_.AddMessage(dialogs_);
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].text, "text 40");
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kQuestion);
  EXPECT_EQ(dialogs_.messages[0].buttons, MessageButtons::kYesNo);
}

TEST_F(AddMessageTest, AppendsAMessage) {
  state_.Command2Visible = true;
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  view_.AddMessage(dialogs_);
  EXPECT_EQ(set_.LastMsg, 3);
  EXPECT_EQ(state_.HScroll1.max, 3);
  EXPECT_EQ(set_.Modified, kTrue);
  EXPECT_FALSE(state_.Command2Visible);
}

TEST_F(AddMessageTest, OnlyHidesItsButtonForNo) {
  state_.Command2Visible = true;
  state_.HScroll1.max = 2;
  dialogs_.yes_no_answers = {MessageAnswer::kNo};
  view_.AddMessage(dialogs_);
  EXPECT_EQ(set_.LastMsg, 2);
  EXPECT_EQ(state_.HScroll1.max, 2);
  EXPECT_EQ(set_.Modified, kFalse);
  EXPECT_FALSE(state_.Command2Visible);
}

TEST_F(AddMessageTest, ShowsWhateverTheSetHoldsForTheNewMessage) {
  set_.OriginText[3] = DisplayText(Codes("left  "));
  set_.DestText[3] = DisplayText(Codes("over  "));
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  view_.AddMessage(dialogs_);
  view_.Scroll(3);
  EXPECT_EQ(Captions(6), "left  ");
  EXPECT_EQ(EditBox(), "over");
}

TEST_F(EditorViewTest, TogglesBetweenCompactAndFullHeight) {
  EXPECT_EQ(view_.ToggleHeight(), -1000);
  EXPECT_EQ(state_.height, 8535);
  EXPECT_EQ(view_.ToggleHeight(), 1000);
  EXPECT_EQ(state_.height, 2925);
}

TEST_F(EditorViewTest, TakesAHeightOf4000ForFull) {
  state_.height = 4000;
  EXPECT_EQ(view_.ToggleHeight(), 1000);
  EXPECT_EQ(state_.height, 2925);
  state_.height = 3999;
  EXPECT_EQ(view_.ToggleHeight(), -1000);
  EXPECT_EQ(state_.height, 8535);
}

class DisplayTypeTest : public EditorViewTest {
 protected:
  // The numbers of the checked entries.
  std::string Checked() const {
    std::string checked;
    for (std::size_t i = 0; i < menus_.mnuLCD.size(); ++i) {
      checked += menus_.mnuLCD[i].checked ? std::to_string(i) : "";
    }
    return checked;
  }
};

TEST_F(DisplayTypeTest, ChecksExactlyTheChosenEntry) {
  for (std::size_t type = 0; type < 4; ++type) {
    view_.ChooseDisplayType(type);
    EXPECT_EQ(Checked(), std::to_string(type));
  }
}

TEST_F(DisplayTypeTest, DoesNotMarkTheSetChangedForTheFirstChoice) {
  view_.ChooseDisplayType(2);
  EXPECT_EQ(set_.Modified, kFalse);
  EXPECT_TRUE(menus_.DisplayTypeChosen);
}

TEST_F(DisplayTypeTest, MarksTheSetChangedForASecondDifferentChoice) {
  view_.ChooseDisplayType(2);
  view_.ChooseDisplayType(1);
  EXPECT_EQ(set_.Modified, kTrue);
}

TEST_F(DisplayTypeTest, ChangesNothingForTheCheckedType) {
  view_.ChooseDisplayType(2);
  view_.ChooseDisplayType(2);
  EXPECT_EQ(set_.Modified, kFalse);
  EXPECT_EQ(Checked(), "2");
}

TEST_F(DisplayTypeTest, DoesNotMarkTheSetChangedWhenAFileBringsAnotherType) {
  view_.ChooseDisplayType(2);
  view_.LoadDisplayType(3);
  EXPECT_EQ(set_.Modified, kFalse);
  EXPECT_EQ(Checked(), "3");
}

TEST_F(DisplayTypeTest, MarksTheSetChangedForAChoiceAfterLoading) {
  view_.LoadDisplayType(3);
  view_.ChooseDisplayType(0);
  EXPECT_EQ(set_.Modified, kTrue);
}

}  // namespace
}  // namespace vendlingua
