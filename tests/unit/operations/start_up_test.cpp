#include "core/operations/start_up.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "core/operations/interface_language.h"
#include "core/platform/files.h"
#include "core/presentation/menu_state.h"
#include "core/presentation/view_state.h"
#include "support/hostile_names.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

using test::ScriptedDialogs;
using test::TemporaryFolder;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class FixedFontList : public FontList {
 public:
  std::vector<std::string> families = {"Courier", "LCD", "LCD_CY", "LCD KTV", "LCD HBR"};

  std::vector<std::string> Families() const override { return families; }
};

// A program folder that holds the language files that a test wants.
class StartUpTest : public testing::Test {
 protected:
  StartUpTest() { workspace_.folders = folders_; }

  // A language file with a name of its own in entry 1 and texts in the others.
  void AddLanguage(const std::string& name) {
    std::string content = name + "\r\n";
    for (int entry = 2; entry <= 60; ++entry) {
      content += "text " + std::to_string(entry) + "\r\n";
    }
    folder_.Write(name + ".lng", content);
  }

  // "a" to "j" and, tenth in alphabetical order, "italiano".
  void AddElevenLanguages() {
    AddLanguage("italiano");
    for (char letter = 'a'; letter <= 'j'; ++letter) {
      AddLanguage(std::string(1, letter));
    }
  }

  // A language file that is too large to be read.
  void AddOversizedLanguage(const std::string& name) {
    std::filesystem::resize_file(folder_.Write(name + ".lng", name + "\r\n"),
                                 kMessageFileLimit + 1);
  }

  std::vector<std::string> Listed() const {
    std::vector<std::string> names;
    for (const MenuEntry& entry : MenusOf(workspace_).smnuLingue) {
      if (entry.visible) {
        names.push_back(entry.caption);
      }
    }
    return names;
  }

  // One box names these files.
  void ExpectNamed(const std::vector<std::string>& files) const {
    ASSERT_THAT(dialogs_.messages, SizeIs(1));
    EXPECT_EQ(dialogs_.messages.front().icon, MessageIcon::kExclamation);
    for (const std::string& file : files) {
      EXPECT_THAT(dialogs_.messages.front().text, testing::HasSubstr(file));
    }
  }

  bool Start() { return StartUp(workspace_, dialogs_, fonts_).Form_Load(); }

  std::string CheckedLanguage() const {
    for (const MenuEntry& entry : MenusOf(workspace_).smnuLingue) {
      if (entry.checked) {
        return entry.caption;
      }
    }
    return "";
  }

  TemporaryFolder folder_;
  Folders folders_{.program = folder_.path(),
                   .current = {},
                   .settings = folder_ / "vendlingua.ini",
                   .user_settings = folder_ / "user/vendlingua.ini"};
  ScriptedDialogs dialogs_;
  FixedFontList fonts_;
  Workspace workspace_;
};

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

TEST_F(StartUpTest, ListsLanguagesInAlphabeticalOrderWithoutRegardToCase) {
  AddLanguage("italiano");
  AddLanguage("Svenska");
  AddLanguage("deutsch");
  EXPECT_TRUE(Start());
  EXPECT_EQ(MenusOf(workspace_).smnuLingue[0].caption, "deutsch");
  EXPECT_EQ(MenusOf(workspace_).smnuLingue[1].caption, "italiano");
  EXPECT_EQ(MenusOf(workspace_).smnuLingue[2].caption, "Svenska");
  EXPECT_FALSE(MenusOf(workspace_).smnuLingue[3].visible);
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

TEST_F(StartUpTest, ListsTenLanguagesAtMost) {
  AddElevenLanguages();
  EXPECT_TRUE(Start());
  EXPECT_EQ(MenusOf(workspace_).smnuLingue.front().caption, "a");
  EXPECT_EQ(MenusOf(workspace_).smnuLingue[8].caption, "i");
  EXPECT_EQ(MenusOf(workspace_).smnuLingue.back().caption, "italiano");
  EXPECT_TRUE(MenusOf(workspace_).smnuLingue.back().visible);
}

TEST_F(StartUpTest, NeverLoadsTheTenthLanguage) {
  AddElevenLanguages();
  folder_.Write("vendlingua.ini", "Lingua=italiano\r\n");
  EXPECT_TRUE(Start());
  EXPECT_EQ(CheckedLanguage(), "a");
}

TEST_F(StartUpTest, LoadsTheNinthLanguage) {
  AddElevenLanguages();
  folder_.Write("vendlingua.ini", "Lingua=i\r\n");
  EXPECT_TRUE(Start());
  EXPECT_EQ(CheckedLanguage(), "i");
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

TEST_F(StartUpTest, EndsWithoutLanguageFiles) {
  EXPECT_FALSE(Start());
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages.front().text, "File missing!\nReinstall program");
  EXPECT_EQ(dialogs_.messages.front().title, "Error");
  EXPECT_EQ(dialogs_.messages.front().icon, MessageIcon::kCritical);
}

TEST_F(StartUpTest, HasTheReferenceBuiltInWhereItsFileIsMissing) {
  folder_.Write("dansk.lng", "Fil\r\n");
  EXPECT_TRUE(Start());
  ExpectNamed({"italiano.lng"});
  EXPECT_THAT(Listed(), ElementsAre("dansk"));
  EXPECT_EQ(workspace_.ui_text.Entry(1), "Fil");
  EXPECT_EQ(workspace_.ui_text[UiTextId::kYes], "&Sì") << "what dansk lacks";
}

TEST_F(StartUpTest, HasTheReferenceBuiltInWhereItsFileIsAPipe) {
  AddLanguage("dansk");
  ASSERT_EQ(mkfifo((folder_ / "italiano.lng").c_str(), 0600), 0);
  EXPECT_TRUE(Start());
  ExpectNamed({"italiano.lng"});
}

TEST_F(StartUpTest, LeavesOutLanguagesThatCannotBeReadAndNamesThem) {
  AddLanguage("italiano");
  AddLanguage("english");
  AddOversizedLanguage("dansk");
  AddOversizedLanguage("deutsch");
  EXPECT_TRUE(Start());
  ExpectNamed({"dansk.lng", "deutsch.lng"});
  EXPECT_THAT(Listed(), ElementsAre("english", "italiano"));
  EXPECT_EQ(CheckedLanguage(), "english");
}

TEST_F(StartUpTest, SpeaksTheReferenceWhereNoLanguageCanBeRead) {
  AddOversizedLanguage("dansk");
  AddOversizedLanguage("italiano");
  EXPECT_TRUE(Start());
  ExpectNamed({"dansk.lng", "italiano.lng"});
  EXPECT_EQ(CheckedLanguage(), "italiano");
  EXPECT_EQ(workspace_.ui_text[UiTextId::kYes], "&Sì");
}

TEST_F(StartUpTest, TakesNoFolderForALanguage) {
  AddLanguage("italiano");
  std::filesystem::create_directory(folder_ / "dansk.lng");
  EXPECT_TRUE(Start());
  EXPECT_THAT(Listed(), ElementsAre("italiano"));
}

TEST_F(StartUpTest, TakesNoPipeForALanguage) {
  AddLanguage("italiano");
  ASSERT_EQ(mkfifo((folder_ / "dansk.lng").c_str(), 0600), 0);
  EXPECT_TRUE(Start());
  EXPECT_THAT(Listed(), ElementsAre("italiano"));
}

TEST_F(StartUpTest, TakesNoLinkThatLeadsNowhereForALanguage) {
  AddLanguage("italiano");
  std::filesystem::create_symlink("gone.lng", folder_ / "dansk.lng");
  std::filesystem::create_symlink("english.lng", folder_ / "english.lng");
  EXPECT_TRUE(Start());
  EXPECT_THAT(Listed(), ElementsAre("italiano"));
}

TEST_F(StartUpTest, TakesTheExtensionOfALanguageInAnyCase) {
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

TEST_F(StartUpTest, TakesTheReferenceLanguageInAnyCase) {
  AddLanguage("ITALIANO");
  std::filesystem::rename(folder_ / "ITALIANO.lng", folder_ / "ITALIANO.LNG");
  EXPECT_TRUE(Start());
  EXPECT_THAT(Listed(), ElementsAre("ITALIANO"));
}

TEST_F(StartUpTest, ListsALanguageOnceThatHasTwoFiles) {
  AddLanguage("italiano");
  folder_.Write("italiano.LNG", "another\r\n");
  EXPECT_TRUE(Start());
  EXPECT_THAT(Listed(), ElementsAre("italiano"));
  EXPECT_EQ(MenusOf(workspace_).mnuFile.caption, "italiano");
}

TEST_F(StartUpTest, LoadsALanguageWhoseFileNameIsNoUtf8) {
  AddLanguage("italiano");
  folder_.Write(
      "fran\xE7"
      "ais.lng",
      "Fichier\r\n");
  EXPECT_TRUE(Start());
  EXPECT_THAT(Listed(), ElementsAre("fran\uFFFDais", "italiano"));
  EXPECT_EQ(MenusOf(workspace_).mnuFile.caption, "Fichier");
}

TEST_F(StartUpTest, RemembersALanguageOutsideOfTheCodePage) {
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

// Whatever is wrong with a folder is told, too.
TEST_F(StartUpTest, EndsWithABoxWhereItsFolderIsMissing) {
  workspace_.folders.program = folder_ / "missing";
  EXPECT_FALSE(Start());
  EXPECT_THAT(dialogs_.messages, SizeIs(1));
}

TEST_F(StartUpTest, WorksInAFolderOfAnyName) {
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
