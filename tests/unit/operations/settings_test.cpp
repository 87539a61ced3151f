#include "core/operations/settings.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/platform/errors.h"
#include "core/platform/files.h"
#include "support/named_pipe.h"
#include "support/ordinary_user.h"
#include "support/skip_on_windows.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

TEST(ReadSettings, TakesTheNameOfTheFile) {
  const test::TemporaryFolder folder;
  std::string language = "start";
  ReadSettings(folder.Write("vendlingua.ini", "Lingua=english\r\n"), language);
  EXPECT_EQ(language, "english");
}

TEST(ReadSettings, KeepsTheNameWhenTheFileHoldsNone) {
  const test::TemporaryFolder folder;
  std::string language = "start";
  ReadSettings(folder.Write("vendlingua.ini", "Lingua\r\n"), language);
  EXPECT_EQ(language, "start");
}

TEST(ReadSettings, KeepsTheNameWhenTheFileIsTooLarge) {
  const test::TemporaryFolder folder;
  const auto file = folder.Write("vendlingua.ini", "Lingua=english\r\n");
  std::filesystem::resize_file(file, kMessageFileLimit + 1);
  std::string language = "start";
  ReadSettings(file, language);
  EXPECT_EQ(language, "start");
}

TEST(ReadSettings, KeepsTheNameWhenThereIsNoFile) {
  const test::TemporaryFolder folder;
  std::string language = "start";
  ReadSettings(folder / "missing.ini", language);
  EXPECT_EQ(language, "start");
}

TEST(ReadSettings, KeepsTheNameWhenTheFileIsAFolder) {
  const test::TemporaryFolder folder;
  std::string language = "start";
  ReadSettings(folder.path(), language);
  EXPECT_EQ(language, "start");
}

TEST(WriteSettings, WritesOneLine) {
  const test::TemporaryFolder folder;
  WriteSettings(folder / "vendlingua.ini", "english");
  EXPECT_EQ(test::Slurp(folder / "vendlingua.ini"), "Lingua=english\r\n");
}

TEST(WriteSettings, LosesWhateverTheFileHeld) {
  const test::TemporaryFolder folder;
  const auto file = folder.Write("vendlingua.ini", "Lingua=a much longer name\r\nmore\r\n");
  WriteSettings(file, "dansk");
  EXPECT_EQ(test::Slurp(file), "Lingua=dansk\r\n");
}

TEST(WriteSettings, ThrowsWhereNothingCanBeWritten) {
  const test::TemporaryFolder folder;
  EXPECT_THROW(WriteSettings(folder / "missing/vendlingua.ini", "dansk"), FileError);
}

class WorkspaceSettingsTest : public testing::Test {
 protected:
  WorkspaceSettingsTest() {
    workspace_.folders.settings = folder_ / "vendlingua.ini";
    workspace_.folders.user_settings = folder_ / "user/vendlingua.ini";
    std::filesystem::create_directory(folder_ / "user");
    workspace_.LanguageName = "start";
  }

  void WriteBoth() {
    folder_.Write("vendlingua.ini", "Lingua=english\r\n");
    folder_.Write("user/vendlingua.ini", "Lingua=deutsch\r\n");
  }

  // What an ordinary user reads when the folder of the program and the settings file in it have
  // these modes.
  std::string LanguageReadWithModes(unsigned folder_mode, unsigned file_mode) {
    std::filesystem::permissions(folder_ / "vendlingua.ini", std::filesystem::perms(file_mode));
    std::filesystem::permissions(folder_.path(), std::filesystem::perms(folder_mode));
    {
      const test::OrdinaryUser user;
      EXPECT_TRUE(user.holds()) << "root that may not become another user";
      ReadSettings(workspace_);
    }
    std::filesystem::permissions(folder_.path(), std::filesystem::perms::owner_all);
    return workspace_.LanguageName;
  }

  test::TemporaryFolder folder_;
  Workspace workspace_;
};

TEST_F(WorkspaceSettingsTest, AreReadBesideTheProgram) {
  folder_.Write("vendlingua.ini", "Lingua=english\r\n");
  ReadSettings(workspace_);
  EXPECT_EQ(workspace_.LanguageName, "english");
}

TEST_F(WorkspaceSettingsTest, AreReadFromTheUsersOwnFileWhereThereIsNoOther) {
  folder_.Write("user/vendlingua.ini", "Lingua=deutsch\r\n");
  ReadSettings(workspace_);
  EXPECT_EQ(workspace_.LanguageName, "deutsch");
}

TEST_F(WorkspaceSettingsTest, BesideTheProgramGoBeforeTheUsersOwn) {
  WriteBoth();
  ReadSettings(workspace_);
  EXPECT_EQ(workspace_.LanguageName, "english");
}

TEST_F(WorkspaceSettingsTest, BesideTheProgramGoBehindTheUsersOwnWhereTheFolderIsReadOnly) {
  SKIP_ON_WINDOWS("modes of files");
  WriteBoth();
  EXPECT_EQ(LanguageReadWithModes(0555, 0666), "deutsch");
}

TEST_F(WorkspaceSettingsTest, BesideTheProgramGoBehindTheUsersOwnWhereTheFileIsReadOnly) {
  SKIP_ON_WINDOWS("modes of files");
  WriteBoth();
  EXPECT_EQ(LanguageReadWithModes(0777, 0444), "deutsch");
}

TEST_F(WorkspaceSettingsTest, BesideTheProgramGoBeforeTheUsersOwnForWhoeverMayWriteThem) {
  SKIP_ON_WINDOWS("modes of files");
  WriteBoth();
  EXPECT_EQ(LanguageReadWithModes(0777, 0666), "english");
}

TEST_F(WorkspaceSettingsTest, AreReadFromTheUsersOwnFileWhereTheOtherIsUseless) {
  WriteBoth();
  folder_.Write("vendlingua.ini", "Ling");
  ReadSettings(workspace_);
  EXPECT_EQ(workspace_.LanguageName, "deutsch");
}

TEST_F(WorkspaceSettingsTest, WaitForNoPipe) {
  SKIP_ON_WINDOWS("pipes among files");
  folder_.Write("user/vendlingua.ini", "Lingua=deutsch\r\n");
  ASSERT_TRUE(test::MakePipe(folder_ / "vendlingua.ini"));
  ReadSettings(workspace_);
  EXPECT_EQ(workspace_.LanguageName, "deutsch");
  workspace_.interface_languages = {.names = {"english"}, .chosen = 0};
  WriteSettings(workspace_);
  EXPECT_EQ(test::Slurp(folder_ / "user/vendlingua.ini"), "Lingua=english\r\n");
}

TEST_F(WorkspaceSettingsTest, OutsideOfTheCodePageAreKept) {
  workspace_.interface_languages = {.names = {"\u65E5\u672C\u8A9E"}, .chosen = 0};
  WriteSettings(workspace_);
  ReadSettings(workspace_);
  EXPECT_EQ(workspace_.LanguageName, "\u65E5\u672C\u8A9E");
}

TEST_F(WorkspaceSettingsTest, KeepTheNameOfTheStartWithoutAnyFile) {
  ReadSettings(workspace_);
  EXPECT_EQ(workspace_.LanguageName, "start");
}

TEST_F(WorkspaceSettingsTest, HoldTheCheckedLanguage) {
  workspace_.interface_languages = {.names = {"deutsch", "english", "italiano"}, .chosen = 1};
  WriteSettings(workspace_);
  EXPECT_EQ(test::Slurp(folder_ / "vendlingua.ini"), "Lingua=english\r\n");
}

TEST_F(WorkspaceSettingsTest, AreNotWrittenWithoutACheckedLanguage) {
  folder_.Write("vendlingua.ini", "Lingua=english\r\n");
  EXPECT_THROW(WriteSettings(workspace_), Error);
  EXPECT_EQ(test::Slurp(folder_ / "vendlingua.ini"), "Lingua=english\r\n");
}

}  // namespace
}  // namespace vendlingua
