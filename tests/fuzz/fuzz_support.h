#ifndef VENDLINGUA_TESTS_FUZZ_FUZZ_SUPPORT_H_
#define VENDLINGUA_TESTS_FUZZ_FUZZ_SUPPORT_H_

#include <fuzzer/FuzzedDataProvider.h>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "core/engine.h"
#include "core/platform/dialogs.h"
#include "core/platform/errors.h"

namespace vendlingua::fuzz {

/// Ends the run with a finding when `condition` does not hold.
void Require(bool condition, const char* what);

/// A folder of this process, emptied; inputs are laid there for the readers.
std::filesystem::path EmptyFolder();

/// Answers every question: files from a queue and then none, numbers from a queue and then with
/// what is proposed, names of languages each with one that was not there before, Yes and No in
/// turn.
class FuzzDialogs : public Dialogs {
 public:
  std::deque<std::filesystem::path> files;
  std::deque<std::string> numbers;

  MessageAnswer MessageBox(const MessageRequest& request) override;
  std::string InputBox(const InputRequest& request) override;
  std::optional<std::filesystem::path> OpenFile(const FileRequest& request) override;
  std::optional<std::filesystem::path> SaveFile(const FileRequest& request) override;
  std::vector<ConflictAnswer> ResolveConflicts(const ConflictRequest& /*request*/) override {
    return {};
  }
  void LetPendingEventsRun() override {}

 private:
  std::optional<std::filesystem::path> NextFile();

  int names_ = 0;
  int questions_ = 0;
};

/// Runs a reader. Refusing is what bad input gets; anything else that it throws is a finding.
template <typename Reader>
int Run(Reader reader) {
  try {
    reader();
  } catch (const Error&) {
  }
  return 0;
}

/// An input: the content of a file and, in its last bytes, what is done with that file.
struct Input {
  Input(const std::uint8_t* bytes, std::size_t size);

  std::string content;
  FuzzedDataProvider choices;
};

/// One of the set's languages from `first` on; nothing when there is none.
std::optional<int> PickLanguage(Input& input, const MessageSet& set, std::size_t first);

/// Opens `input` as a file of the given name, takes an origin and a destination of it, edits and
/// saves. A save that fails must leave the file as it was, and a saved file must open again.
void EditAndSave(const char* name, Input& input);

}  // namespace vendlingua::fuzz

#endif  // VENDLINGUA_TESTS_FUZZ_FUZZ_SUPPORT_H_
