#ifndef VENDLINGUA_TESTS_UNIT_FLASH_FLASH_COMPILER_TEST_H_
#define VENDLINGUA_TESTS_UNIT_FLASH_FLASH_COMPILER_TEST_H_

#include <gmock/gmock.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/engine.h"
#include "core/platform/errors.h"
#include "support/message_files.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_folder.h"

namespace vendlingua::test {

/// Answers from its script, and lets a test look around while a dialog is open.
class WatchingDialogs : public ScriptedDialogs {
 public:
  std::function<void()> while_asking_for_file = [] {};
  std::function<void()> while_pending_events_run = [] {};

  std::optional<std::filesystem::path> SaveFile(const FileRequest& request) override {
    while_asking_for_file();
    return ScriptedDialogs::SaveFile(request);
  }

  void LetPendingEventsRun() override {
    while_pending_events_run();
    ScriptedDialogs::LetPendingEventsRun();
  }
};

/// The lines, each ended by CR LF.
inline std::string Joined(const std::vector<std::string>& lines) {
  std::string joined;
  for (const std::string& line : lines) {
    joined += line + "\r\n";
  }
  return joined;
}

/// The lines that CR LF ends.
inline std::vector<std::string> Lines(const std::string& content) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  for (std::size_t end = 0; (end = content.find("\r\n", start)) != std::string::npos;
       start = end + 2) {
    lines.push_back(content.substr(start, end - start));
  }
  return lines;
}

/// The records of languages 1 and 2 of the file below, 24 bytes from 0x6000 and from 0xFF8000 on.
inline const std::string kLowRecords =
    Joined({"S1136000313030303131313131323232323030307E", "S10B60103231313132323232F7"});
inline const std::string kHighRecords =
    Joined({"S214FF8000313030303131313131323232323030305E", "S20CFF80103231313132323232D7"});

/// Compiles a ".MES" file whose memory of 24 bytes has two slots of three messages of four cells.
class FlashCompilerTest : public testing::Test {
 protected:
  void Open(std::string_view name, std::string_view content) {
    dialogs_.file_answers = {folder_.Write(name, content)};
    ASSERT_EQ(engine_.opener.Open(), OpenOutcome::kOpened);
    dialogs_.pending_event_runs = 0;
  }

  void OpenMes() { Open("SET.MES", file_.Bytes()); }

  // ".hex" family, the firmware lists its languages itself.
  void OpenHexFile() {
    file_.flags = "01";
    OpenMes();
  }

  void OpenMhxFile() {
    file_.flags = "03";
    file_.mem_start = "00FF8000";
    OpenMes();
  }

  CompileOutcome Compile(const std::vector<int>& languages, const std::filesystem::path& flash_file,
                         const std::optional<std::filesystem::path>& copy = std::nullopt) {
    compiler_.ticked.fill(false);
    for (const int language : languages) {
      compiler_.ticked.at(static_cast<std::size_t>(language)) = true;
    }
    dialogs_.file_answers = {flash_file};
    if (copy) {
      dialogs_.file_answers.push_back(*copy);
    }
    return engine_.compiler.Compile();
  }

  std::string ReasonOfRefusal(const std::vector<int>& languages,
                              const std::filesystem::path& flash_file) {
    try {
      Compile(languages, flash_file);
    } catch (const Error& error) {
      return error.what();
    }
    return "not refused";
  }

  void ExpectReady() const {
    EXPECT_FALSE(compiler_.busy);
    EXPECT_FALSE(compiler_.hourglass);
  }

  void ExpectBusy() const {
    EXPECT_TRUE(compiler_.busy);
    EXPECT_TRUE(compiler_.hourglass);
  }

  TemporaryFolder folder_;
  MesFile file_{.names = {"Default", "ITALIANO", "ENGLISH", "DEUTSCH"}};
  WatchingDialogs dialogs_;
  Engine engine_{dialogs_};
  CompilerState& compiler_ = engine_.compiler_state;
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_UNIT_FLASH_FLASH_COMPILER_TEST_H_
