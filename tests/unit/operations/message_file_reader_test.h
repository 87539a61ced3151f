#ifndef VENDLINGUA_TESTS_UNIT_OPERATIONS_MESSAGE_FILE_READER_TEST_H_
#define VENDLINGUA_TESTS_UNIT_OPERATIONS_MESSAGE_FILE_READER_TEST_H_

#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/operations/message_file_reader.h"
#include "core/platform/errors.h"
#include "support/engine_test.h"

namespace vendlingua::test {

/// An engine that opens files, also while another one is being edited.
class MessageFileReaderTest : public EngineTest {
 protected:
  // Captions of the visible entries of a language menu from entry `first` on.
  static std::vector<std::string> Visible(const MenuState::LanguageMenu& menu,
                                          std::size_t first = 0) {
    std::vector<std::string> captions;
    for (std::size_t i = first; i < menu.size(); ++i) {
      if (menu[i].visible) {
        captions.push_back(menu[i].caption);
      }
    }
    return captions;
  }

  // Leaves the traces of a file that is being edited everywhere.
  void EditAnotherFile() {
    Open("OTHER.MES", MesFile{.flags = "0B", .names = {"Default", "ITALIANO", "ENGLISH"}}.Bytes());
    engine_.languages.ChooseOrigin(1);
    engine_.languages.ChooseDestination(2);
    engine_.editing.GoTo(2);
    set_.DestText.back() = DisplayText(Codes("last"));
    window_.offers_new_message = true;
    window_.height = WindowState::kFullHeight;
    dialogs_.pending_event_runs = 0;
  }

  void ExpectResetEditor() const {
    const auto cells = view().Label5;
    EXPECT_FALSE(std::any_of(cells.begin(), cells.end(),
                             [](const OriginCell& cell) { return cell.visible; }));
    EXPECT_EQ(view().Label6, 0);
    EXPECT_FALSE(view().Text1.enabled);
    EXPECT_TRUE(view().Text1.text.empty());
    EXPECT_FALSE(view().Command1Enabled);
    EXPECT_FALSE(view().HScroll1.enabled);
    EXPECT_EQ(view().HScroll1.value, 0);
    EXPECT_FALSE(menus().mnuDest.enabled);
    EXPECT_FALSE(menus().mnuSave.enabled);
    EXPECT_FALSE(menus().mnuSaas.enabled);
    EXPECT_FALSE(menus().mnuTLCD.enabled);
  }

  void ExpectResetSet() const {
    EXPECT_EQ(set_.DestLang, 0);
    EXPECT_EQ(set_.Modified, kFalse);
    EXPECT_TRUE(std::all_of(set_.DestText.begin(), set_.DestText.end(),
                            [](const DisplayText& text) { return text == DisplayText(); }));
  }

  std::string ReasonAgainstOpening(std::string_view name, std::string_view content) {
    try {
      Open(name, content);
    } catch (const FileError& error) {
      return error.what();
    }
    return "none";
  }
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_UNIT_OPERATIONS_MESSAGE_FILE_READER_TEST_H_
