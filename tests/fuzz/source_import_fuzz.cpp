#include <memory>

#include "core/platform/files.h"
#include "fuzz_support.h"

namespace vendlingua {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  return fuzz::Run([&] {
    fuzz::Input input(bytes, size);
    fuzz::FuzzDialogs dialogs;
    const auto engine = std::make_unique<Engine>(dialogs);
    const auto folder = fuzz::EmptyFolder();
    const auto source = folder / "SOURCE.MES";
    const auto message_file = folder / "NEW.MES";
    WriteFile(source, input.content);
    dialogs.files = {source, message_file};
    while (input.choices.remaining_bytes() > 0) {
      dialogs.numbers.push_back(input.choices.ConsumeRandomLengthString(8));
    }
    const bool opened = engine->opener.Open() == OpenOutcome::kOpened;
    fuzz::Require(ReadFile(source) == input.content, "the source stays as it was");
    if (!opened) {
      return;
    }
    const MessageSet& set = engine->workspace.set;
    fuzz::Require(set.Width() <= 256, "a message is as wide as a byte can say");
    fuzz::Require(set.OriginText.size() >= set.MessageCount(), "every message has a text");
    engine->languages.ChooseOrigin(0);
    engine->languages.StartNewLanguage(0);
    engine->writer.Save();
  });
}

}  // namespace vendlingua
