#include "core/operations/rename_language.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "core/platform/errors.h"
#include "core/presentation/compiler_view.h"
#include "support/engine_test.h"
#include "support/ordinary_user.h"

namespace vendlingua {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

// A file of two languages whose entries are loaded.
class RenameLanguageTest : public test::EngineTest {
 protected:
  RenameLanguageTest() {
    mes_.names = {"Default", "ITALIANO", "ENGLISH"};
    Open("A.MES", mes_.Bytes());
  }

  // What the compiler window shows.
  std::string Entry(std::size_t language) const {
    return CompilerViewOf(set_, engine_.compiler_state).Check1.at(language).caption;
  }

  void Rename(int language) { RenameLanguage(engine_.workspace, dialogs_, language); }

  test::MesFile mes_;
  const std::filesystem::path file_ = folder_ / "A.MES";
};

TEST_F(RenameLanguageTest, WritesTheNameFieldAndNoOtherByte) {
  dialogs_.input_answers = {"polski"};
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  Rename(2);
  std::string expected = mes_.Bytes();
  expected.replace(24 + 2 * mes_.BlockLength(), 20, "POLSKI              ");
  EXPECT_EQ(test::Slurp(file_), expected);
  EXPECT_EQ(Entry(2), "POLSKI");
  EXPECT_EQ(menus().mnuori[2].caption, "POLSKI");
  EXPECT_EQ(menus().mnuDes[2].caption, "POLSKI");
  EXPECT_EQ(menus().mnuNew[2].caption, "POLSKI");
}

TEST_F(RenameLanguageTest, CutsANameAtTwentyCharacters) {
  dialogs_.input_answers = {"abcdefghijklmnopqrstuvwxyz"};
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  Rename(1);
  EXPECT_EQ(Entry(1), "ABCDEFGHIJKLMNOPQRST");
  EXPECT_EQ(test::Slurp(file_).substr(24 + mes_.BlockLength(), 24), "ABCDEFGHIJKLMNOPQRST1000");
}

TEST_F(RenameLanguageTest, ABlankNameChangesNothing) {
  dialogs_.input_answers = {"  "};
  Rename(1);
  EXPECT_EQ(test::Slurp(file_), mes_.Bytes());
  EXPECT_EQ(Entry(1), "ITALIANO");
  EXPECT_EQ(menus().mnuDes[1].caption, "ITALIANO");
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(RenameLanguageTest, TheNameOfAnotherLanguageIsAskedForAgain) {
  dialogs_.input_answers = {"english", ""};
  Rename(1);
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].text, "text 34\nENGLISH\ntext 35");
  EXPECT_EQ(dialogs_.messages[0].title, "text 51");
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
  EXPECT_EQ(Entry(1), "ITALIANO");
  EXPECT_EQ(test::Slurp(file_), mes_.Bytes());
}

TEST_F(RenameLanguageTest, ACharacterWithoutDisplayCodeIsAskedForAgain) {
  dialogs_.input_answers = {"\xD0\xB1", ""};
  Rename(1);
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].title, "ERROR");
}

TEST_F(RenameLanguageTest, AFileThatMayOnlyBeReadStaysAsItIs) {
  using std::filesystem::perms;
  permissions(file_, perms::owner_read | perms::group_read | perms::others_read);
  dialogs_.input_answers = {"polski"};
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  const test::OrdinaryUser ordinary_user;
  if (!ordinary_user.holds()) {
    GTEST_SKIP() << "this user may write every file";
  }
  Rename(2);
  EXPECT_EQ(dialogs_.messages.back().title, "Error Property");
  EXPECT_EQ(Entry(2), "POLSKI");
  EXPECT_EQ(test::Slurp(file_), mes_.Bytes());
}

TEST_F(RenameLanguageTest, MarksThatCannotFollowAreNoFaultOfTheMessageFile) {
  using std::filesystem::perms;
  const auto marks = folder_.Write("A.MES.marks", R"({"format": "vendlingua-marks", "version": 1,
    "marks": [{"language": "ENGLISH", "message": 0, "origin": "", "mark": "done", "remark": ""}]})");
  std::filesystem::permissions(folder_.path(), perms::all);
  std::filesystem::permissions(file_, perms::all);
  std::filesystem::permissions(marks, perms::owner_read | perms::group_read | perms::others_read);
  dialogs_.input_answers = {"polski"};
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  const test::OrdinaryUser ordinary_user;
  if (!ordinary_user.holds()) {
    GTEST_SKIP() << "this user may write every file";
  }
  EXPECT_THAT([this] { Rename(2); },
              testing::ThrowsMessage<FileError>(testing::HasSubstr("A.MES.marks")));
  EXPECT_THAT(dialogs_.messages, SizeIs(1)) << "the question alone";
  EXPECT_EQ(test::Slurp(file_).substr(24 + 2 * mes_.BlockLength(), 6), "POLSKI");
}

TEST_F(RenameLanguageTest, AFileThatCannotBeWrittenKeepsTheNewNameOnTheScreen) {
  std::filesystem::remove(file_);
  dialogs_.input_answers = {"polski"};
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  Rename(2);
  EXPECT_EQ(dialogs_.messages.back().text,
            "File Error: This file is only reading!\nPlease change the property File");
  EXPECT_EQ(dialogs_.messages.back().title, "Error Property");
  EXPECT_EQ(dialogs_.messages.back().icon, MessageIcon::kCritical);
  EXPECT_EQ(Entry(2), "POLSKI");
  EXPECT_EQ(menus().mnuDes[2].caption, "POLSKI");
  EXPECT_EQ(folder_.Names(), "");
}

TEST_F(RenameLanguageTest, IsDoneWithoutAQuestion) {
  RenameLanguage(engine_.workspace, dialogs_, 2, NameField::FromAnswer("polski"));
  std::string expected = mes_.Bytes();
  expected.replace(24 + 2 * mes_.BlockLength(), 20, "POLSKI              ");
  EXPECT_EQ(test::Slurp(file_), expected);
  EXPECT_EQ(Entry(2), "POLSKI");
  EXPECT_THAT(dialogs_.inputs, IsEmpty());
}

TEST_F(RenameLanguageTest, FailsWhereTheFileIsGone) {
  std::filesystem::remove(file_);
  EXPECT_THROW(RenameLanguage(engine_.workspace, dialogs_, 2, NameField::FromAnswer("polski")),
               FileError);
}

}  // namespace
}  // namespace vendlingua
