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
    engine.view.Scroll(choices.ConsumeIntegralInRange(0, int{engine.workspace.set.LastMsg}));
    const auto code = choices.ConsumeIntegral<DisplayCode>();
    engine.view.ChangeText(DisplayCodes(choices.ConsumeIntegralInRange<std::size_t>(0, 45), code));
    engine.view.KeyPressed();
    engine.view.Drop(code, choices.ConsumeIntegralInRange(0, 400), 400);
    if (engine.workspace.view.Command2Visible) {
      engine.view.AddMessage(dialogs);
    }
  }
  engine.view.ChooseDisplayType(choices.ConsumeIntegralInRange<std::size_t>(0, 3));
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

fs::path FuzzDialogs::OpenFile(const FileRequest& /*request*/) { return NextFile(); }
fs::path FuzzDialogs::SaveFile(const FileRequest& /*request*/) { return NextFile(); }

fs::path FuzzDialogs::NextFile() {
  if (files.empty()) {
    return {};
  }
  fs::path file = files.front();
  files.pop_front();
  return file;
}

Input::Input(const std::uint8_t* bytes, std::size_t size)
    : content(bytes, bytes + size - std::min(size, kChoiceBytes)),
      choices(bytes + content.size(), size - content.size()) {}

std::optional<int> PickVisible(Input& input, const MenuState::LanguageMenu& menu,
                               std::size_t first) {
  std::vector<int> entries;
  for (std::size_t i = first; i < menu.size(); ++i) {
    if (menu[i].visible) {
      entries.push_back(static_cast<int>(i));
    }
  }
  if (entries.empty()) {
    return std::nullopt;
  }
  return entries[input.choices.ConsumeIntegralInRange<std::size_t>(0, entries.size() - 1)];
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
  const MenuState& menus = engine->workspace.menus;
  engine->languages.ChooseOrigin(PickVisible(input, menus.mnuori, 0).value());
  const auto destination = PickVisible(input, menus.mnuDes, 1);
  engine->languages.OpenDestinationMenu();
  if (!destination || (menus.mnuDes[0].enabled && input.choices.ConsumeBool())) {
    engine->languages.StartNewLanguage(0);
  } else {
    engine->languages.ChooseDestination(*destination);
  }
  Edit(*engine, dialogs, input.choices);
  if (engine->writer.Save().result == SaveOutcome::kFailed) {
    Require(ReadFile(path) == input.content, "a save that fails leaves the file as it was");
    return;
  }
  dialogs.files = {path};
  Engine again(dialogs);
  Require(again.opener.Open() == OpenOutcome::kOpened, "a saved file opens again");
}

}  // namespace vendlingua::fuzz
