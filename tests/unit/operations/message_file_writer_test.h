#ifndef VENDLINGUA_TESTS_UNIT_OPERATIONS_MESSAGE_FILE_WRITER_TEST_H_
#define VENDLINGUA_TESTS_UNIT_OPERATIONS_MESSAGE_FILE_WRITER_TEST_H_

#include <gmock/gmock.h>

#include <cstddef>
#include <string>
#include <string_view>

#include "core/operations/message_file_writer.h"
#include "support/engine_test.h"

namespace vendlingua::test {

/// An engine that saves.
class MessageFileWriterTest : public EngineTest {
 protected:
  void SetDestination(std::size_t message, std::string_view text) {
    set_.DestText.at(message) = DisplayText(Codes(text));
  }

  // What a user types as the message that is shown.
  void Type(std::string_view text) {
    engine_.editing.ChangeText(Codes(text));
    engine_.editing.KeyPressed();
  }

  void ExpectSaved() {
    const SaveOutcome outcome = engine_.writer.Save();
    EXPECT_EQ(outcome.result, SaveOutcome::kSaved) << outcome.reason;
  }

  std::string ReasonOfFailure() {
    const SaveOutcome outcome = engine_.writer.Save();
    EXPECT_EQ(outcome.result, SaveOutcome::kFailed);
    return outcome.reason;
  }
};

/// A file with the languages Default and ITALIANO, of which ITALIANO is edited.
class EditedMesFile : public MessageFileWriterTest {
 protected:
  void Edit(const MesFile& file, int language = 1) {
    bytes_ = file.Bytes();
    Open("FILE.MES", bytes_);
    engine_.languages.ChooseOrigin(0);
    engine_.languages.ChooseDestination(language);
  }

  // Starts a blank new language.
  void StartNewLanguage(const MesFile& file) {
    bytes_ = file.Bytes();
    Open("FILE.MES", bytes_);
    engine_.languages.ChooseOrigin(0);
    engine_.languages.StartNewLanguage(0);
  }

  std::string Patched(std::size_t offset, std::string_view text) const {
    return std::string(bytes_).replace(offset, text.size(), text);
  }

  std::string Saved() {
    ExpectSaved();
    return Slurp(folder_ / "FILE.MES");
  }

  // The flags of `file` as they are saved with display type `type`.
  std::string SavedFlags(const MesFile& file, std::size_t type) {
    Edit(file);
    engine_.editing.ChooseDisplayType(type);
    return Saved().substr(2, 2);
  }

  std::string bytes_;
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_UNIT_OPERATIONS_MESSAGE_FILE_WRITER_TEST_H_
