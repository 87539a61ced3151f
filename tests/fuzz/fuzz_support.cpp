#include "fuzz_support.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

#include "core/formats/file_check.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua::fuzz {
namespace {

namespace fs = std::filesystem;

// How many of the last bytes of an input say what is done with the file before them.
constexpr std::size_t kChoiceBytes = 24;

void Edit(Engine& engine, Dialogs& dialogs, FuzzedDataProvider& choices) {
  for (int edits = choices.ConsumeIntegralInRange(0, 3); edits > 0; --edits) {
    engine.editing.GoTo(
        choices.ConsumeIntegralInRange<std::size_t>(0, engine.workspace.set.LastMsg));
    const auto code = choices.ConsumeIntegral<DisplayCode>();
    engine.editing.ChangeText(
        DisplayCodes(choices.ConsumeIntegralInRange<std::size_t>(0, 45), code));
    engine.editing.KeyPressed();
    engine.editing.Drop(code, choices.ConsumeIntegralInRange(0, 400), 400);
    if (engine.workspace.window.offers_new_message) {
      engine.editing.AddMessage(dialogs);
    }
  }
  engine.editing.Undo();
  engine.editing.Redo();
  engine.editing.ChooseDisplayType(choices.ConsumeIntegralInRange<std::size_t>(0, 3));
}

void RequireOpens(const fs::path& path, FuzzDialogs& dialogs) {
  dialogs.files = {path};
  const auto again = std::make_unique<Engine>(dialogs);
  Require(again->opener.Open() == OpenOutcome::kOpened, "a saved file opens again");
}

void Save(Engine& engine, FuzzDialogs& dialogs, const fs::path& path, const std::string& before) {
  if (engine.writer.Save().result == SaveOutcome::kFailed) {
    Require(ReadFile(path) == before, "a save that fails leaves the file as it was");
    return;
  }
  RequireOpens(path, dialogs);
}

void SaveAs(Engine& engine, FuzzDialogs& dialogs, const fs::path& path, const std::string& before) {
  const fs::path copy = path.parent_path() / ("COPY" + path.extension().string());
  dialogs.files = {copy};
  try {
    engine.writer.SaveAs();
  } catch (const Error&) {
    Require(!fs::exists(copy), "a copy that fails is not there");
  }
  Require(ReadFile(path) == before, "a copy leaves the file as it was");
  if (fs::exists(copy)) {
    RequireOpens(copy, dialogs);
  }
}

}  // namespace

void Require(bool condition, const char* what) {
  if (!condition) {
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
  }
}

fs::path EmptyFolder() {
  static const fs::path folder =
      fs::temp_directory_path() / ("vendlingua-fuzz-" + std::to_string(getpid()));
  [[maybe_unused]] static const auto removed_at_the_end =
      std::shared_ptr<void>(nullptr, [](void*) { fs::remove_all(folder); });
  fs::create_directory(folder);
  for (const auto& entry : fs::directory_iterator(folder)) {
    fs::remove_all(entry.path());
  }
  return folder;
}

MessageAnswer FuzzDialogs::MessageBox(const MessageRequest& request) {
  if (request.buttons == MessageButtons::kOk) {
    return MessageAnswer::kOk;
  }
  return ++questions_ % 2 != 0 ? MessageAnswer::kYes : MessageAnswer::kNo;
}

std::string FuzzDialogs::InputBox(const InputRequest& request) {
  if (request.purpose == InputPurpose::kNewLanguageName ||
      request.purpose == InputPurpose::kRenamedLanguageName) {
    return "language " + std::to_string(++names_);
  }
  if (numbers.empty()) {
    return request.default_answer;
  }
  std::string answer = numbers.front();
  numbers.pop_front();
  return answer;
}

std::optional<fs::path> FuzzDialogs::OpenFile(const FileRequest& /*request*/) { return NextFile(); }

std::optional<fs::path> FuzzDialogs::SaveFile(const FileRequest& /*request*/) { return NextFile(); }

std::optional<fs::path> FuzzDialogs::NextFile() {
  if (files.empty()) {
    return std::nullopt;
  }
  fs::path file = files.front();
  files.pop_front();
  return file;
}

Input::Input(const std::uint8_t* bytes, std::size_t size)
    : content(bytes, bytes + size - std::min(size, kChoiceBytes)),
      choices(bytes + content.size(), size - content.size()) {}

std::optional<int> PickLanguage(Input& input, const MessageSet& set, std::size_t first) {
  if (set.language_names.size() <= first) {
    return std::nullopt;
  }
  return static_cast<int>(
      input.choices.ConsumeIntegralInRange(first, set.language_names.size() - 1));
}

void EditAndSave(const char* name, Input& input) {
  FuzzDialogs dialogs;
  const auto engine = std::make_unique<Engine>(dialogs);
  const fs::path path = EmptyFolder() / name;
  WriteFile(path, input.content);
  CheckFile(path);
  dialogs.files = {path};
  if (engine->opener.Open() != OpenOutcome::kOpened) {
    return;
  }
  const MessageSet& set = engine->workspace.set;
  engine->languages.ChooseOrigin(PickLanguage(input, set, 0).value());
  if (set.Width() > DisplayText::kCells) {
    return;  // it can be looked at and compiled, not edited
  }
  const auto destination = PickLanguage(input, set, 1);
  if (!destination || (set.IsMes() && !set.IsFull() && input.choices.ConsumeBool())) {
    engine->languages.StartNewLanguage(0);
  } else {
    engine->languages.ChooseDestination(*destination);
  }
  Edit(*engine, dialogs, input.choices);
  if (input.choices.ConsumeBool()) {
    SaveAs(*engine, dialogs, path, input.content);
  } else {
    Save(*engine, dialogs, path, input.content);
  }
}

}  // namespace vendlingua::fuzz
