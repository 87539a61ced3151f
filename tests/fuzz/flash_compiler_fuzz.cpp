#include <memory>

#include "core/flash/language_selection.h"
#include "core/platform/files.h"
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
    LoadEntries(engine->workspace, engine->compiler_state);
    const int slots = engine->workspace.set.LangCount;
    for (int ticks = 0; ticks < slots; ++ticks) {
      if (const auto language = fuzz::PickVisible(input, engine->workspace.menus.mnuDes, 1)) {
        TickEntry(engine->compiler_state, *language, true, slots);
      }
    }
    if (engine->compiler_state.Command1Enabled) {
      dialogs.files = {folder / "FW0417AB.MHX", folder / "MP0417AA.MSX"};
      engine->compiler.Compile();
    }
    fuzz::Require(ReadFile(message_file) == input.content, "the message file stays as it was");
  });
}

}  // namespace vendlingua
