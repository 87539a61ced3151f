#include <memory>

#include "core/platform/files.h"
#include "core/presentation/compiler_view.h"
#include "fuzz_support.h"

namespace vendlingua {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  return fuzz::Run([&] {
    fuzz::Input input(bytes, size);
    fuzz::FuzzDialogs dialogs;
    const auto engine = std::make_unique<Engine>(dialogs);
    const auto folder = fuzz::EmptyFolder();
    const auto message_file = folder / (input.choices.ConsumeBool() ? "INPUT.MES" : "INPUT.MSX");
    WriteFile(message_file, input.content);
    dialogs.files = {message_file};
    if (engine->opener.Open() != OpenOutcome::kOpened) {
      return;
    }
    const MessageSet& set = engine->workspace.set;
    CompilerState& compiler = engine->compiler_state;
    for (int ticks = 0; ticks < set.LangCount; ++ticks) {
      if (const auto language = fuzz::PickLanguage(input, set, 1)) {
        compiler.ticked.at(static_cast<std::size_t>(*language)) = true;
      }
    }
    if (CompilerViewOf(set, compiler).Command1Enabled) {
      dialogs.files = {folder / "FW0417AB.MHX", folder / "MP0417AA.MSX"};
      engine->compiler.Compile();
    }
    fuzz::Require(ReadFile(message_file) == input.content, "the message file stays as it was");
  });
}

}  // namespace vendlingua
