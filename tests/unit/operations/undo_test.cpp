#include "core/presentation/menu_state.h"
#include "unit/operations/editing_test.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::MesEditingTest;

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

}  // namespace
}  // namespace vendlingua
