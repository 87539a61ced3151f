#include <memory>
#include <string>

#include "core/formats/mes_layout.h"
#include "core/operations/rename_language.h"
#include "core/platform/files.h"
#include "fuzz_support.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using fuzz::Require;

// `content` with nothing in the names of its languages.
std::string WithoutNames(std::string content, const MessageSet& set) {
  for (std::size_t language = 1; language < set.language_names.size(); ++language) {
    const auto name = static_cast<std::size_t>(MesBlockOffset(set, static_cast<int>(language)));
    content.replace(name, NameField::kBytes, NameField::kBytes, '\0');
  }
  return content;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  return fuzz::Run([&] {
    fuzz::Input input(bytes, size);
    const fs::path path = fuzz::EmptyFolder() / "INPUT.MES";
    WriteFile(path, input.content);
    fuzz::FuzzDialogs dialogs;
    dialogs.files = {path};
    const auto engine = std::make_unique<Engine>(dialogs);
    if (engine->opener.Open() != OpenOutcome::kOpened) {
      return;
    }
    const MessageSet& set = engine->workspace.set;
    const auto language = fuzz::PickLanguage(input, set, 1);
    if (language) {
      RenameLanguage(engine->workspace, dialogs, *language);
      Require(WithoutNames(ReadFile(path), set) == WithoutNames(input.content, set),
              "a new name changes nothing but names");
    }
  });
}

}  // namespace vendlingua
