#ifndef VENDLINGUA_TESTS_UNIT_OPERATIONS_START_UP_TEST_H_
#define VENDLINGUA_TESTS_UNIT_OPERATIONS_START_UP_TEST_H_

#include <gmock/gmock.h>

#include <filesystem>
#include <string>
#include <vector>

#include "core/operations/start_up.h"
#include "core/platform/files.h"
#include "core/presentation/menu_state.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_folder.h"

namespace vendlingua::test {

/// Fonts of a system.
class FixedFontList : public FontList {
 public:
  std::vector<std::string> families = {"Courier", "LCD", "LCD_CY", "LCD KTV", "LCD HBR"};

  std::vector<std::string> Families() const override { return families; }
};

/// A program folder that holds the language files that a test wants.
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
    ASSERT_THAT(dialogs_.messages, testing::SizeIs(1));
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

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_UNIT_OPERATIONS_START_UP_TEST_H_
