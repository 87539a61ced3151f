#include <gmock/gmock.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "core/operations/interface_language.h"
#include "core/operations/settings.h"
#include "core/platform/errors.h"
#include "core/presentation/menu_state.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

// Two languages, the first of them in use.
class ChooseInterfaceLanguageTest : public testing::Test {
 protected:
  ChooseInterfaceLanguageTest() {
    workspace_.folders.program = folder_.path();
    workspace_.folders.settings = folder_ / "vendlingua.ini";
    workspace_.folders.user_settings = folder_ / "user/vendlingua.ini";
    folder_.Write("one.lng", "File\r\nOpen\r\n;-- mark\r\nSave\r\n");
    workspace_.interface_languages = {.names = {"one", "two"}, .chosen = 0};
    workspace_.LanguageName = "one";
    LoadLanguageFile(workspace_, "one.lng");
  }

  void Choose() { ChooseInterfaceLanguage(workspace_, dialogs_, 1); }

  test::TemporaryFolder folder_;
  test::ScriptedDialogs dialogs_;
  Workspace workspace_;
};

TEST_F(ChooseInterfaceLanguageTest, CaptionsTheMenusAndWritesTheSettings) {
  folder_.Write("two.lng",
                "Datei\r\n\xD6"
                "ffnen\r\n;-- Marke\r\nSpeichern\r\n");
  Choose();
  EXPECT_EQ(MenusOf(workspace_).mnuOpen.caption,
            "\xC3\x96"
            "ffnen");
  EXPECT_TRUE(MenusOf(workspace_).smnuLingue[1].checked);
  EXPECT_FALSE(MenusOf(workspace_).smnuLingue[0].checked);
  EXPECT_EQ(workspace_.LanguageName, "two");
  EXPECT_EQ(test::Slurp(folder_ / "vendlingua.ini"), "Lingua=two\r\n");
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(ChooseInterfaceLanguageTest, RefusesAFileThatIsALineShort) {
  folder_.Write("two.lng", "Datei\r\nOeffnen\r\n;-- Marke\r\n");
  workspace_.ui_text.Set(36, "title");
  workspace_.ui_text.Set(37, "warning");
  Choose();
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].text, "warning");
  EXPECT_EQ(dialogs_.messages[0].title, "title");
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kExclamation);
  EXPECT_EQ(MenusOf(workspace_).mnuFile.caption, "File");
  EXPECT_TRUE(MenusOf(workspace_).smnuLingue[0].checked);
  EXPECT_FALSE(MenusOf(workspace_).smnuLingue[1].checked);
  EXPECT_EQ(test::Slurp(folder_ / "vendlingua.ini"), "Lingua=one\r\n");
}

TEST_F(ChooseInterfaceLanguageTest, RefusesAFileWithItsMarksElsewhere) {
  folder_.Write("two.lng", "Datei\r\n;-- Marke\r\nOeffnen\r\nSpeichern\r\n");
  Choose();
  EXPECT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_TRUE(MenusOf(workspace_).smnuLingue[0].checked);
}

TEST_F(ChooseInterfaceLanguageTest, RestoresEveryTextWhereverTheRefusedFileIsCut) {
  constexpr std::string_view kFile = "Datei\r\nOeffnen\r\n;-- Marke\r\n";
  for (std::size_t size = 0; size <= kFile.size(); ++size) {
    folder_.Write("two.lng", kFile.substr(0, size));
    Choose();
    EXPECT_THAT(dialogs_.messages, SizeIs(size + 1));
    EXPECT_EQ(workspace_.ui_text.Entry(1), "File") << size;
    EXPECT_EQ(workspace_.ui_text.Entry(2), "Open") << size;
    EXPECT_EQ(workspace_.ui_text.Entry(3), ";-- mark") << size;
    EXPECT_EQ(workspace_.LanguageName, "one") << size;
  }
}

TEST_F(ChooseInterfaceLanguageTest, KeepsTheLanguageWhenAFileIsMissing) {
  EXPECT_THROW(Choose(), FileError);
  EXPECT_EQ(workspace_.ui_text.Entry(1), "File");
  EXPECT_TRUE(MenusOf(workspace_).smnuLingue[0].checked);
}

TEST_F(ChooseInterfaceLanguageTest, WritesTheUsersOwnSettingsWhereTheFolderIsReadOnly) {
  std::filesystem::create_directory(folder_ / "vendlingua.ini");  // stands for a read-only folder
  folder_.Write("two.lng", "Datei\r\nOeffnen\r\n;-- Marke\r\nSpeichern\r\n");
  Choose();
  EXPECT_EQ(test::Slurp(folder_ / "user/vendlingua.ini"), "Lingua=two\r\n");
}

TEST_F(ChooseInterfaceLanguageTest, SettingsBesideTheProgramReplaceTheUsersOwn) {
  std::filesystem::create_directory(folder_ / "user");
  folder_.Write("user/vendlingua.ini", "Lingua=one\r\n");
  WriteSettings(workspace_);
  EXPECT_FALSE(std::filesystem::exists(folder_ / "user/vendlingua.ini"));
}

}  // namespace
}  // namespace vendlingua
