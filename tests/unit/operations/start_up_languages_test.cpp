#include "core/operations/interface_language.h"
#include "support/named_pipe.h"
#include "support/skip_on_windows.h"
#include "unit/operations/start_up_test.h"

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

class StartUpLanguagesTest : public test::StartUpTest {};

TEST_F(StartUpLanguagesTest, ListsLanguagesInAlphabeticalOrderWithoutRegardToCase) {
  AddLanguage("italiano");
  AddLanguage("Svenska");
  AddLanguage("deutsch");
  EXPECT_TRUE(Start());
  EXPECT_EQ(MenusOf(workspace_).smnuLingue[0].caption, "deutsch");
  EXPECT_EQ(MenusOf(workspace_).smnuLingue[1].caption, "italiano");
  EXPECT_EQ(MenusOf(workspace_).smnuLingue[2].caption, "Svenska");
  EXPECT_FALSE(MenusOf(workspace_).smnuLingue[3].visible);
}

TEST_F(StartUpLanguagesTest, ListsTenLanguagesAtMost) {
  AddElevenLanguages();
  EXPECT_TRUE(Start());
  EXPECT_EQ(MenusOf(workspace_).smnuLingue.front().caption, "a");
  EXPECT_EQ(MenusOf(workspace_).smnuLingue[8].caption, "i");
  EXPECT_EQ(MenusOf(workspace_).smnuLingue.back().caption, "italiano");
  EXPECT_TRUE(MenusOf(workspace_).smnuLingue.back().visible);
}

TEST_F(StartUpLanguagesTest, NeverLoadsTheTenthLanguage) {
  AddElevenLanguages();
  folder_.Write("vendlingua.ini", "Lingua=italiano\r\n");
  EXPECT_TRUE(Start());
  EXPECT_EQ(CheckedLanguage(), "a");
}

TEST_F(StartUpLanguagesTest, LoadsTheNinthLanguage) {
  AddElevenLanguages();
  folder_.Write("vendlingua.ini", "Lingua=i\r\n");
  EXPECT_TRUE(Start());
  EXPECT_EQ(CheckedLanguage(), "i");
}

TEST_F(StartUpLanguagesTest, EndsWithoutLanguageFiles) {
  EXPECT_FALSE(Start());
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages.front().text, "File missing!\nReinstall program");
  EXPECT_EQ(dialogs_.messages.front().title, "Error");
  EXPECT_EQ(dialogs_.messages.front().icon, MessageIcon::kCritical);
}

TEST_F(StartUpLanguagesTest, HasTheReferenceBuiltInWhereItsFileIsMissing) {
  folder_.Write("dansk.lng", "Fil\r\n");
  EXPECT_TRUE(Start());
  ExpectNamed({"italiano.lng"});
  EXPECT_THAT(Listed(), ElementsAre("dansk"));
  EXPECT_EQ(workspace_.ui_text.Entry(1), "Fil");
  EXPECT_EQ(workspace_.ui_text[UiTextId::kYes], "&Sì") << "what dansk lacks";
}

TEST_F(StartUpLanguagesTest, HasTheReferenceBuiltInWhereItsFileIsAPipe) {
  SKIP_ON_WINDOWS("pipes among files");
  AddLanguage("dansk");
  ASSERT_TRUE(test::MakePipe(folder_ / "italiano.lng"));
  EXPECT_TRUE(Start());
  ExpectNamed({"italiano.lng"});
}

TEST_F(StartUpLanguagesTest, LeavesOutLanguagesThatCannotBeReadAndNamesThem) {
  AddLanguage("italiano");
  AddLanguage("english");
  AddOversizedLanguage("dansk");
  AddOversizedLanguage("deutsch");
  EXPECT_TRUE(Start());
  ExpectNamed({"dansk.lng", "deutsch.lng"});
  EXPECT_THAT(Listed(), ElementsAre("english", "italiano"));
  EXPECT_EQ(CheckedLanguage(), "english");
}

TEST_F(StartUpLanguagesTest, SpeaksTheReferenceWhereNoLanguageCanBeRead) {
  AddOversizedLanguage("dansk");
  AddOversizedLanguage("italiano");
  EXPECT_TRUE(Start());
  ExpectNamed({"dansk.lng", "italiano.lng"});
  EXPECT_EQ(CheckedLanguage(), "italiano");
  EXPECT_EQ(workspace_.ui_text[UiTextId::kYes], "&Sì");
}

TEST_F(StartUpLanguagesTest, TakesNoFolderForALanguage) {
  AddLanguage("italiano");
  std::filesystem::create_directory(folder_ / "dansk.lng");
  EXPECT_TRUE(Start());
  EXPECT_THAT(Listed(), ElementsAre("italiano"));
}

TEST_F(StartUpLanguagesTest, TakesNoPipeForALanguage) {
  SKIP_ON_WINDOWS("pipes among files");
  AddLanguage("italiano");
  ASSERT_TRUE(test::MakePipe(folder_ / "dansk.lng"));
  EXPECT_TRUE(Start());
  EXPECT_THAT(Listed(), ElementsAre("italiano"));
}

TEST_F(StartUpLanguagesTest, TakesNoLinkThatLeadsNowhereForALanguage) {
  SKIP_ON_WINDOWS("links for everybody");
  AddLanguage("italiano");
  std::filesystem::create_symlink("gone.lng", folder_ / "dansk.lng");
  std::filesystem::create_symlink("english.lng", folder_ / "english.lng");
  EXPECT_TRUE(Start());
  EXPECT_THAT(Listed(), ElementsAre("italiano"));
}

TEST_F(StartUpLanguagesTest, TakesTheExtensionOfALanguageInAnyCase) {
  AddLanguage("italiano");
  AddLanguage("dansk");
  AddLanguage("english");
  std::filesystem::rename(folder_ / "dansk.lng", folder_ / "dansk.LNG");
  std::filesystem::rename(folder_ / "english.lng", folder_ / "english.Lng");
  folder_.Write("vendlingua.ini", "Lingua=english\r\n");
  EXPECT_TRUE(Start());
  EXPECT_THAT(Listed(), ElementsAre("dansk", "english", "italiano"));
  EXPECT_EQ(MenusOf(workspace_).mnuFile.caption, "english");
}

TEST_F(StartUpLanguagesTest, TakesTheReferenceLanguageInAnyCase) {
  AddLanguage("ITALIANO");
  std::filesystem::rename(folder_ / "ITALIANO.lng", folder_ / "ITALIANO.LNG");
  EXPECT_TRUE(Start());
  EXPECT_THAT(Listed(), ElementsAre("ITALIANO"));
}

TEST_F(StartUpLanguagesTest, ListsALanguageOnceThatHasTwoFiles) {
  SKIP_ON_WINDOWS("names that differ by case alone");
  AddLanguage("italiano");
  folder_.Write("italiano.LNG", "another\r\n");
  EXPECT_TRUE(Start());
  EXPECT_THAT(Listed(), ElementsAre("italiano"));
  EXPECT_EQ(MenusOf(workspace_).mnuFile.caption, "italiano");
}

TEST_F(StartUpLanguagesTest, LoadsALanguageWhoseFileNameIsNoUtf8) {
  SKIP_ON_WINDOWS("names that are no text");
  AddLanguage("italiano");
  folder_.Write(
      "fran\xE7"
      "ais.lng",
      "Fichier\r\n");
  EXPECT_TRUE(Start());
  EXPECT_THAT(Listed(), ElementsAre("fran\uFFFDais", "italiano"));
  EXPECT_EQ(MenusOf(workspace_).mnuFile.caption, "Fichier");
}

TEST_F(StartUpLanguagesTest, RemembersALanguageOutsideOfTheCodePage) {
  SKIP_ON_WINDOWS("names that are no text");
  AddLanguage("italiano");
  AddLanguage("\u0440\u0443\u0441");
  AddLanguage(
      "fran\xE7"
      "ais");
  for (const std::size_t index : {2U, 0U}) {
    EXPECT_TRUE(Start());
    ChooseInterfaceLanguage(workspace_, dialogs_, index);
    const std::string chosen = Listed().at(index);
    workspace_ = Workspace();
    workspace_.folders = folders_;
    EXPECT_TRUE(Start());
    EXPECT_EQ(CheckedLanguage(), chosen);
  }
}

}  // namespace
}  // namespace vendlingua
