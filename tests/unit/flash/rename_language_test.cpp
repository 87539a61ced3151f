#include "flash/rename_language.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "app/engine.h"
#include "flash/language_selection.h"
#include "support/message_files.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

using testing::SizeIs;

// A file of two languages whose entries are loaded.
class RenameLanguageTest : public testing::Test {
 protected:
  RenameLanguageTest() {
    mes_.names = {"Default", "ITALIANO", "ENGLISH"};
    file_ = folder_.Write("A.MES", mes_.Bytes());
    dialogs_.file_answers = {file_};
    engine_.opener.Open();
    LoadEntries(engine_.workspace, engine_.compiler_state);
    engine_.workspace.ui_text.Set(34, "The language");
    engine_.workspace.ui_text.Set(35, "exists.");
    engine_.workspace.ui_text.Set(51, "In use");
  }

  void Rename(int language) {
    RenameLanguage(engine_.workspace, engine_.compiler_state, dialogs_, language);
  }

  test::MesFile mes_;
  test::TemporaryFolder folder_;
  test::ScriptedDialogs dialogs_;
  Engine engine_{dialogs_};
  std::filesystem::path file_;
};

TEST_F(RenameLanguageTest, WritesTheNameFieldAndNoOtherByte) {
  dialogs_.input_answers = {"polski"};
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  Rename(2);
  std::string expected = mes_.Bytes();
  expected.replace(24 + 2 * mes_.BlockLength(), 20, "POLSKI              ");
  EXPECT_EQ(test::Slurp(file_), expected);
  EXPECT_EQ(engine_.compiler_state.Check1[2].caption, "POLSKI");
  EXPECT_EQ(engine_.workspace.menus.mnuori[2].caption, "POLSKI");
  EXPECT_EQ(engine_.workspace.menus.mnuDes[2].caption, "POLSKI");
  EXPECT_EQ(engine_.workspace.menus.mnuNew[2].caption, "POLSKI");
}

TEST_F(RenameLanguageTest, CutsANameAtTwentyCharacters) {
  dialogs_.input_answers = {"abcdefghijklmnopqrstuvwxyz"};
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  Rename(1);
  EXPECT_EQ(engine_.compiler_state.Check1[1].caption, "ABCDEFGHIJKLMNOPQRST");
}

TEST_F(RenameLanguageTest, ABlankNameChangesNothing) {
  dialogs_.input_answers = {"  "};
  Rename(1);
  EXPECT_EQ(test::Slurp(file_), mes_.Bytes());
  EXPECT_THAT(dialogs_.messages, SizeIs(0));
}

TEST_F(RenameLanguageTest, TheNameOfAnotherLanguageIsAskedForAgain) {
  dialogs_.input_answers = {"english", ""};
  Rename(1);
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].text, "The language\nENGLISH\nexists.");
  EXPECT_EQ(dialogs_.messages[0].title, "In use");
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kExclamation);
  EXPECT_THAT(dialogs_.inputs, SizeIs(2));
}

TEST_F(RenameLanguageTest, ItsOwnNameIsNoOtherLanguages) {
  dialogs_.input_answers = {"italiano"};
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  Rename(1);
  EXPECT_EQ(test::Slurp(file_), mes_.Bytes());
}

TEST_F(RenameLanguageTest, NoKeepsTheOldName) {
  dialogs_.input_answers = {"polski"};
  dialogs_.yes_no_answers = {MessageAnswer::kNo};
  Rename(1);
  EXPECT_EQ(engine_.compiler_state.Check1[1].caption, "ITALIANO");
  EXPECT_EQ(test::Slurp(file_), mes_.Bytes());
}

TEST_F(RenameLanguageTest, ACharacterWithoutDisplayCodeIsAskedForAgain) {
  dialogs_.input_answers = {"\xD0\xB1", ""};
  Rename(1);
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].title, "ERROR");
}

TEST_F(RenameLanguageTest, AFileThatCannotBeWrittenKeepsTheNewNameOnTheScreen) {
  std::filesystem::remove(file_);
  dialogs_.input_answers = {"polski"};
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  Rename(2);
  EXPECT_EQ(dialogs_.messages.back().text,
            "File Error: This file is only reading!\nPlease change the property File");
  EXPECT_EQ(dialogs_.messages.back().title, "Error Property");
  EXPECT_EQ(engine_.compiler_state.Check1[2].caption, "POLSKI");
}

}  // namespace
}  // namespace vendlingua
