#include "core/operations/editing.h"

#include <gmock/gmock.h>

#include "core/presentation/menu_state.h"
#include "core/presentation/view_state.h"
#include "support/message_files.h"
#include "support/scripted_dialogs.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::Text;
using testing::SizeIs;

constexpr int kBoxWidth = 3660;  // of the text, in twips

// A set whose destination is being edited.
class EditingTest : public testing::Test {
 protected:
  EditingTest() { set_.phase = Phase::kDestinationOpen; }

  void Show(std::size_t message) {
    set_.current_message = message;
    window_.typed.reset();
  }

  ViewState view() const { return ViewOf(workspace_); }

  // What Label5(0..`cells` - 1) shows; "_" for an empty cell.
  std::string Captions(std::size_t cells) const {
    std::string captions;
    for (std::size_t i = 0; i < cells; ++i) {
      captions += static_cast<char>(view().Label5.at(i).caption.value_or('_'));
    }
    return captions;
  }

  // "d" for a dark cell, "p" for a pale one.
  std::string Backgrounds(std::size_t cells) const {
    std::string backgrounds;
    for (std::size_t i = 0; i < cells; ++i) {
      backgrounds += view().Label5.at(i).dark ? 'd' : 'p';
    }
    return backgrounds;
  }

  std::string EditBox() const { return Text(view().Text1.text); }

  std::string Destination(std::size_t message) const {
    return Text(set_.DestText.at(message).Cells());
  }

  static std::string Field(std::string text) {
    text.resize(40, ' ');
    return text;
  }

  Workspace workspace_;
  MessageSet& set_ = workspace_.set;
  WindowState& window_ = workspace_.window;
  Editing editing_{workspace_};
  test::ScriptedDialogs dialogs_;
};

// Three messages of six cells, of which message 1 has placeholders.
class MesEditingTest : public EditingTest {
 protected:
  MesEditingTest() {
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

class MsxEditingTest : public EditingTest {
 protected:
  MsxEditingTest() {
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

class AddMessageTest : public MesEditingTest {
 protected:
  AddMessageTest() { workspace_.ui_text.Set(40, "text 40"); }

  bool OfferedAt(std::size_t message) {
    editing_.GoTo(message);
    return view().Command2Visible;
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

TEST_F(AddMessageTest, IsOfferedBeyondTheTextsThatAResetEmpties) {
  set_.LangStride = 1000;
  set_.LastMsg = 512;
  EXPECT_TRUE(OfferedAt(512));
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  editing_.AddMessage(dialogs_);
  EXPECT_TRUE(OfferedAt(513));
}

TEST_F(AddMessageTest, IsNotOfferedWhileTheEditBoxIsDisabled) {
  set_.phase = Phase::kOriginChosen;
  EXPECT_FALSE(OfferedAt(2));
}

TEST_F(AddMessageTest, IsLeftAsItIsInAMsxSet) {
  set_.CurrentFileType = kMsxType;
  set_.LoadDefaultMessages();
  EXPECT_FALSE(OfferedAt(2));
  window_.offers_new_message = true;
  EXPECT_TRUE(OfferedAt(1));
}

TEST_F(AddMessageTest, AsksBeforeItAdds) {
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  editing_.AddMessage(dialogs_);
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].text, "text 40");
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kQuestion);
  EXPECT_EQ(dialogs_.messages[0].buttons, MessageButtons::kYesNo);
}

TEST_F(AddMessageTest, AppendsAMessage) {
  window_.offers_new_message = true;
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  editing_.AddMessage(dialogs_);
  EXPECT_EQ(set_.LastMsg, 3);
  EXPECT_EQ(view().HScroll1.max, 3);
  EXPECT_EQ(set_.Modified, kTrue);
  EXPECT_FALSE(view().Command2Visible);
}

TEST_F(AddMessageTest, OnlyHidesItsButtonForNo) {
  window_.offers_new_message = true;
  dialogs_.yes_no_answers = {MessageAnswer::kNo};
  editing_.AddMessage(dialogs_);
  EXPECT_EQ(set_.LastMsg, 2);
  EXPECT_EQ(view().HScroll1.max, 2);
  EXPECT_EQ(set_.Modified, kFalse);
  EXPECT_FALSE(view().Command2Visible);
}

TEST_F(AddMessageTest, ShowsWhateverTheSetHoldsForTheNewMessage) {
  set_.OriginText[3] = DisplayText(Codes("left  "));
  set_.DestText[3] = DisplayText(Codes("over  "));
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  editing_.AddMessage(dialogs_);
  editing_.GoTo(3);
  EXPECT_EQ(Captions(6), "left  ");
  EXPECT_EQ(EditBox(), "over");
}

TEST_F(EditingTest, TogglesBetweenCompactAndFullHeight) {
  EXPECT_EQ(editing_.ToggleHeight(), -1000);
  EXPECT_EQ(view().height, 8535);
  EXPECT_EQ(editing_.ToggleHeight(), 1000);
  EXPECT_EQ(view().height, 2925);
}

TEST_F(EditingTest, TakesAHeightOf4000ForFull) {
  window_.height = 4000;
  EXPECT_EQ(editing_.ToggleHeight(), 1000);
  EXPECT_EQ(view().height, 2925);
  window_.height = 3999;
  EXPECT_EQ(editing_.ToggleHeight(), -1000);
  EXPECT_EQ(view().height, 8535);
}

// The texts of MesEditingTest as they are on disk.
class UndoTest : public MesEditingTest {
 protected:
  UndoTest() { set_.TakeDestination(set_.DestText, 1); }

  // What the edit box holds while `text` is typed from its first character on.
  void Type(std::string_view text) {
    for (std::size_t length = 1; length <= text.size(); ++length) {
      editing_.ChangeText(Codes(text.substr(0, length)));
    }
  }
};

TEST_F(UndoTest, TakesBackWhatWasTypedInOneMessageAtOnce) {
  Type("abc");
  editing_.Undo();
  EXPECT_EQ(Destination(0), Field("Test"));
  EXPECT_EQ(EditBox(), "Test");
}

TEST_F(UndoTest, TakesBackWhatWasTypedBeforeAndAfterAPauseByTwoSteps) {
  Type("abc");
  editing_.EndTyping();
  editing_.ChangeText(Codes("abcd"));
  editing_.Undo();
  EXPECT_EQ(EditBox(), "abc");
  editing_.Undo();
  EXPECT_EQ(EditBox(), "Test");
}

TEST_F(UndoTest, ShowsTheMessageThatItChanges) {
  Type("abc");
  editing_.GoTo(2);
  Type("xyz");
  editing_.GoTo(1);
  editing_.Undo();
  EXPECT_EQ(view().Label6, 2);
  EXPECT_EQ(EditBox(), "Engl.");
  editing_.Undo();
  EXPECT_EQ(view().Label6, 0);
  EXPECT_EQ(EditBox(), "Test");
}

TEST_F(UndoTest, SeparatesWhatIsTypedInTheSameMessageLater) {
  Type("abc");
  editing_.GoTo(1);
  editing_.GoTo(0);
  editing_.ChangeText(Codes("abcd"));
  editing_.Undo();
  EXPECT_EQ(EditBox(), "abc");
}

TEST_F(UndoTest, IsDoneAgain) {
  Type("abc");
  editing_.GoTo(1);
  editing_.Undo();
  editing_.Redo();
  EXPECT_EQ(view().Label6, 0);
  EXPECT_EQ(Destination(0), Field("abc"));
  EXPECT_EQ(set_.Modified, kTrue);
}

TEST_F(UndoTest, IsNotDoneAgainAfterAnotherEdit) {
  Type("abc");
  editing_.Undo();
  Type("x");
  editing_.Redo();
  EXPECT_EQ(EditBox(), "x");
}

TEST_F(UndoTest, ClearsTheMarkWhenTheTextsAreThoseOfTheFile) {
  Type("abc");
  editing_.GoTo(2);
  Type("xyz");
  editing_.Undo();
  EXPECT_EQ(set_.Modified, kTrue);
  editing_.Undo();
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(UndoTest, KeepsTheMarkOfAnotherDisplayType) {
  set_.LoadDisplayType(0);
  set_.NoteSaved();
  Type("abc");
  editing_.ChooseDisplayType(1);
  editing_.Undo();
  EXPECT_EQ(set_.Modified, kTrue);
}

TEST_F(UndoTest, KeepsTheMarkOfALanguageThatIsNotInTheFile) {
  set_.TakeDestination(set_.DestText, 0);
  Type("abc");
  editing_.Undo();
  EXPECT_EQ(Destination(0), Field("Test"));
  EXPECT_EQ(set_.Modified, kTrue);
}

TEST_F(UndoTest, MarksTheSetWhenWhatWasSavedIsTakenBack) {
  Type("abc");
  set_.Modified = kFalse;
  set_.NoteSaved();
  editing_.Undo();
  EXPECT_EQ(set_.Modified, kTrue);
  editing_.Redo();
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(UndoTest, BringsBackTheCharacterThatWasCutOff) {
  editing_.ChangeText(Codes("123456"));
  editing_.ChangeText(Codes("x123456"));
  EXPECT_EQ(EditBox(), "x12345");
  editing_.Undo();
  EXPECT_EQ(EditBox(), "123456");
}

TEST_F(UndoTest, TakesADropACopyAndAPastedTextForOneStepEach) {
  editing_.Drop('X', 0, kBoxWidth);
  editing_.Drop('Y', 0, kBoxWidth);
  editing_.CopyOrigin();
  editing_.ChangeText({});
  editing_.ChangeText(Codes("pasted"));
  editing_.ChangeText(Codes("paste"));
  editing_.Undo();
  EXPECT_EQ(EditBox(), "pasted");
  editing_.Undo();
  EXPECT_EQ(EditBox(), "");
  editing_.Undo();
  EXPECT_EQ(EditBox(), "Prova");
  editing_.Undo();
  EXPECT_EQ(EditBox(), "Yest");
  editing_.Undo();
  EXPECT_EQ(EditBox(), "Xest");
  editing_.Undo();
  EXPECT_EQ(EditBox(), "Test");
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(UndoTest, TakesBackAnAddedMessage) {
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  editing_.GoTo(2);
  editing_.AddMessage(dialogs_);
  editing_.GoTo(3);
  Type("new");
  editing_.Undo();
  EXPECT_EQ(EditBox(), "");
  editing_.Undo();
  EXPECT_EQ(set_.LastMsg, 2);
  EXPECT_EQ(view().HScroll1.max, 2);
  EXPECT_EQ(view().Label6, 2);
  EXPECT_EQ(set_.Modified, kFalse);
  editing_.Redo();
  EXPECT_EQ(set_.LastMsg, 3);
  EXPECT_EQ(view().Label6, 3);
}

TEST_F(UndoTest, TakesBackWhatStoringChanged) {
  set_.DestText[1] = DisplayText(Codes("abcdef"));
  set_.NoteSaved();
  Show(1);
  editing_.GoTo(0);
  editing_.Undo();
  EXPECT_EQ(Destination(1), Field("abcdef"));
  EXPECT_EQ(view().Label6, 1);
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(UndoTest, DoesNothingWithoutAnEdit) {
  editing_.GoTo(1);
  editing_.Undo();
  editing_.Redo();
  EXPECT_EQ(view().Label6, 1);
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(UndoTest, IsOfferedInTheMenu) {
  EXPECT_FALSE(MenusOf(workspace_).mnuUndo.enabled);
  Type("a");
  EXPECT_TRUE(MenusOf(workspace_).mnuUndo.enabled);
  EXPECT_FALSE(MenusOf(workspace_).mnuRedo.enabled);
  editing_.Undo();
  EXPECT_FALSE(MenusOf(workspace_).mnuUndo.enabled);
  EXPECT_TRUE(MenusOf(workspace_).mnuRedo.enabled);
}

class DisplayTypeTest : public EditingTest {
 protected:
  // The numbers of the checked entries.
  std::string Checked() const {
    std::string checked;
    const MenuState menus = MenusOf(workspace_);
    for (std::size_t i = 0; i < menus.mnuLCD.size(); ++i) {
      checked += menus.mnuLCD[i].checked ? std::to_string(i) : "";
    }
    return checked;
  }
};

TEST_F(DisplayTypeTest, ChecksExactlyTheChosenEntry) {
  for (std::size_t type = 0; type < 4; ++type) {
    editing_.ChooseDisplayType(type);
    EXPECT_EQ(Checked(), std::to_string(type));
  }
}

TEST_F(DisplayTypeTest, DoesNotMarkTheSetChangedForTheFirstChoice) {
  editing_.ChooseDisplayType(2);
  EXPECT_EQ(set_.Modified, kFalse);
  EXPECT_TRUE(set_.DisplayTypeChosen);
}

TEST_F(DisplayTypeTest, MarksTheSetChangedForASecondDifferentChoice) {
  editing_.ChooseDisplayType(2);
  editing_.ChooseDisplayType(1);
  EXPECT_EQ(set_.Modified, kTrue);
}

TEST_F(DisplayTypeTest, ChangesNothingForTheCheckedType) {
  editing_.ChooseDisplayType(2);
  editing_.ChooseDisplayType(2);
  EXPECT_EQ(set_.Modified, kFalse);
  EXPECT_EQ(Checked(), "2");
}

TEST_F(DisplayTypeTest, DoesNotMarkTheSetChangedWhenAFileBringsAnotherType) {
  editing_.ChooseDisplayType(2);
  set_.LoadDisplayType(3);
  EXPECT_EQ(set_.Modified, kFalse);
  EXPECT_EQ(Checked(), "3");
}

TEST_F(DisplayTypeTest, MarksTheSetChangedForAChoiceAfterLoading) {
  set_.LoadDisplayType(3);
  editing_.ChooseDisplayType(0);
  EXPECT_EQ(set_.Modified, kTrue);
}

}  // namespace
}  // namespace vendlingua
