#ifndef VENDLINGUA_TESTS_SUPPORT_ENGINE_TEST_H_
#define VENDLINGUA_TESTS_SUPPORT_ENGINE_TEST_H_

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "core/engine.h"
#include "core/presentation/menu_state.h"
#include "core/presentation/view_state.h"
#include "support/message_files.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_folder.h"

namespace vendlingua::test {

/// An engine as a program run has it, with scripted dialogs and a folder for its files. Interface
/// text n reads "text n".
class EngineTest : public ::testing::Test {
 protected:
  EngineTest() {
    constexpr std::size_t kTexts = 60;
    for (std::size_t number = 1; number <= kTexts; ++number) {
      engine_.workspace.ui_text.Set(number, "text " + std::to_string(number));
    }
  }

  /// Answers File, Open with `path`.
  OpenOutcome Open(const std::filesystem::path& path) {
    dialogs_.file_answers = {path};
    return engine_.opener.Open();
  }

  /// Writes a file into the folder and opens it.
  OpenOutcome Open(std::string_view name, std::string_view content) {
    return Open(folder_.Write(name, content));
  }

  /// Message `message` of the texts, as wide as the set.
  std::string Origin(std::size_t message) const {
    return Text(set_.OriginText.at(message).First(set_.Width()));
  }
  std::string Destination(std::size_t message) const {
    return Text(set_.DestText.at(message).First(set_.Width()));
  }

  /// What the windows show now.
  MenuState menus() const { return MenusOf(engine_.workspace); }
  ViewState view() const { return ViewOf(engine_.workspace); }

  TemporaryFolder folder_;
  ScriptedDialogs dialogs_;
  Engine engine_{dialogs_};
  MessageSet& set_ = engine_.workspace.set;
  WindowState& window_ = engine_.workspace.window;
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_SUPPORT_ENGINE_TEST_H_
