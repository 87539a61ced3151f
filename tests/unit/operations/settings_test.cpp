#include "core/operations/settings.h"

#include <gtest/gtest.h>

#include "core/platform/errors.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

// What ReadSettings makes of "start" when the settings file holds `content`.
std::string LanguageAfterReading(std::string_view content) {
  const test::TemporaryFolder folder;
  std::string language = "start";
  ReadSettings(folder.Write("vendlingua.ini", content), language);
  return language;
}

TEST(ReadSettings, TakesTheNameBehindTheKey) {
  EXPECT_EQ(LanguageAfterReading("Lingua=english\r\n"), "english");
}

TEST(ReadSettings, TakesLinesThatEndInLfOrWithTheFile) {
  EXPECT_EQ(LanguageAfterReading("Lingua=english\n"), "english");
  EXPECT_EQ(LanguageAfterReading("Lingua=english"), "english");
}

TEST(ReadSettings, SkipsTheFirstSevenCharactersWhateverTheyAre) {
  EXPECT_EQ(LanguageAfterReading("1234567deutsch\r\n"), "deutsch");
}

TEST(ReadSettings, ReadsOnlyTheFirstLine) {
  EXPECT_EQ(LanguageAfterReading("Lingua=english\r\nLingua=deutsch\r\n"), "english");
}

TEST(ReadSettings, TakesAnEmptyName) { EXPECT_EQ(LanguageAfterReading("Lingua=\r\n"), ""); }

TEST(ReadSettings, ReadsWindows1252) {
  EXPECT_EQ(LanguageAfterReading("Lingua=fran\xE7"
                                 "ais\r\n"),
            "français");
}

TEST(ReadSettings, KeepsTheNameWhenTheLineIsShorterThanTheKey) {
  EXPECT_EQ(LanguageAfterReading("Lingua\r\n"), "start");
  EXPECT_EQ(LanguageAfterReading("\r\nLingua=english\r\n"), "start");
  EXPECT_EQ(LanguageAfterReading(""), "start");
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

TEST(WriteSettings, WritesWindows1252) {
  const test::TemporaryFolder folder;
  WriteSettings(folder / "vendlingua.ini", "español");
  EXPECT_EQ(test::Slurp(folder / "vendlingua.ini"), "Lingua=espa\xF1ol\r\n");
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

  test::TemporaryFolder folder_;
  Workspace workspace_;
};

TEST_F(WorkspaceSettingsTest, AreReadBesideTheProgram) {
  folder_.Write("vendlingua.ini", "Lingua=english\r\n");
  ReadSettings(workspace_);
  EXPECT_EQ(workspace_.LanguageName, "english");
}

TEST_F(WorkspaceSettingsTest, AreReadFromTheUsersOwnFileFirst) {
  folder_.Write("vendlingua.ini", "Lingua=english\r\n");
  folder_.Write("user/vendlingua.ini", "Lingua=deutsch\r\n");
  ReadSettings(workspace_);
  EXPECT_EQ(workspace_.LanguageName, "deutsch");
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
