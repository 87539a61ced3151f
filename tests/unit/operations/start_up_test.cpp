#include "unit/operations/start_up_test.h"

#include "core/operations/interface_language.h"
#include "core/presentation/view_state.h"
#include "support/hostile_names.h"
#include "support/skip_on_windows.h"

namespace vendlingua {
namespace {

using test::StartUpTest;
using testing::IsEmpty;
using testing::SizeIs;

TEST(FontMask, HasABitForEachDisplayFont) {
  const std::vector<std::string> families = {"LCD", "Arial", "LCD_CY", "LCD HBR"};
  EXPECT_EQ(FontMask(families), 11);
}

TEST(FontMask, TakesNamesInAnyCase) {
  const std::vector<std::string> families = {"lcd_cy"};
  EXPECT_EQ(FontMask(families), 2);
}

TEST(FontMask, TakesWholeNamesOnly) {
  const std::vector<std::string> families = {"LCD Mono", "LCD KTV 2", "XLCD"};
  EXPECT_EQ(FontMask(families), 0);
}

TEST_F(StartUpTest, GoesOnWithTheFirstLanguageWithoutSettings) {
  AddLanguage("italiano");
  AddLanguage("Dansk");
  EXPECT_TRUE(Start());
  EXPECT_EQ(CheckedLanguage(), "Dansk");
  EXPECT_EQ(workspace_.LanguageName, "Dansk");
  EXPECT_EQ(MenusOf(workspace_).mnuFile.caption, "Dansk");
  EXPECT_EQ(ViewOf(workspace_).caption, "Vendlingua");
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(StartUpTest, GoesOnWithTheFirstLanguageForAnEmptyNameInTheSettings) {
  AddLanguage("italiano");
  AddLanguage("dansk");
  folder_.Write("vendlingua.ini", "Lingua=\r\n");
  EXPECT_TRUE(Start());
  EXPECT_EQ(CheckedLanguage(), "dansk");
  EXPECT_EQ(MenusOf(workspace_).mnuFile.caption, "dansk");
}

TEST_F(StartUpTest, LoadsTheLanguageOfTheSettings) {
  AddLanguage("dansk");
  AddLanguage("italiano");
  folder_.Write("vendlingua.ini", "Lingua=italiano\r\n");
  EXPECT_TRUE(Start());
  EXPECT_EQ(CheckedLanguage(), "italiano");
  EXPECT_EQ(MenusOf(workspace_).mnuFile.caption, "italiano");
}

TEST_F(StartUpTest, FallsBackWhenTheLanguageOfTheSettingsIsGone) {
  AddLanguage("dansk");
  AddLanguage("italiano");
  folder_.Write("vendlingua.ini", "Lingua=latino\r\n");
  EXPECT_TRUE(Start());
  EXPECT_EQ(CheckedLanguage(), "dansk");
}

TEST_F(StartUpTest, TheSettingsBesideTheProgramGoFirst) {
  AddLanguage("dansk");
  AddLanguage("italiano");
  folder_.Write("vendlingua.ini", "Lingua=italiano\r\n");
  std::filesystem::create_directory(folder_ / "user");
  folder_.Write("user/vendlingua.ini", "Lingua=dansk\r\n");
  EXPECT_TRUE(Start());
  EXPECT_EQ(CheckedLanguage(), "italiano");
}

TEST_F(StartUpTest, EndsWithoutTheDisplayFonts) {
  AddLanguage("italiano");
  fonts_.families = {"LCD", "LCD_CY", "LCD HBR"};
  EXPECT_FALSE(Start());
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages.front().text, "text 28\ntext 41");
  EXPECT_EQ(dialogs_.messages.front().title, "text 29");
  EXPECT_EQ(dialogs_.messages.front().icon, MessageIcon::kCritical);
}

// Whatever is wrong with a folder is told, too.

TEST_F(StartUpTest, EndsWithABoxWhereItsFolderIsMissing) {
  workspace_.folders.program = folder_ / "missing";
  EXPECT_FALSE(Start());
  EXPECT_THAT(dialogs_.messages, SizeIs(1));
}

TEST_F(StartUpTest, WorksInAFolderOfAnyName) {
  SKIP_ON_WINDOWS("names that are no text");
  for (const std::string& name : test::HostileNames()) {
    workspace_ = Workspace();
    workspace_.folders.program = folder_ / name;
    workspace_.folders.settings = folder_ / name / "vendlingua.ini";
    workspace_.folders.user_settings = folder_ / name / "user/vendlingua.ini";
    std::filesystem::create_directory(folder_ / name);
    AddLanguage(name + "/italiano");
    AddLanguage(name + "/dansk");
    EXPECT_TRUE(Start()) << name;
    ChooseInterfaceLanguage(workspace_, dialogs_, 1);
    workspace_.LanguageName.clear();
    EXPECT_TRUE(Start()) << name;
    EXPECT_EQ(workspace_.LanguageName, "italiano") << name;
  }
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(StartUpTest, WorksInTheProgramsFolder) {
  AddLanguage("italiano");
  workspace_.folders.current = "/";
  EXPECT_TRUE(Start());
  EXPECT_EQ(workspace_.folders.current, folder_.path());
}

}  // namespace
}  // namespace vendlingua
