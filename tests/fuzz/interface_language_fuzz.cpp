#include <memory>

#include "core/operations/interface_language.h"
#include "core/operations/settings.h"
#include "core/platform/files.h"
#include "fuzz_support.h"

namespace vendlingua {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  return fuzz::Run([&] {
    FuzzedDataProvider data(bytes, size);
    const auto workspace = std::make_unique<Workspace>();
    Folders& folders = workspace->folders;
    folders.program = fuzz::EmptyFolder();
    folders.settings = folders.program / "settings.ini";
    folders.user_settings = folders.program / "user" / "settings.ini";
    WriteFile(folders.settings, data.ConsumeRandomLengthString(40));
    WriteFile(folders.program / "first.lng", data.ConsumeRandomLengthString());
    WriteFile(folders.program / "second.lng", data.ConsumeRemainingBytesAsString());
    ReadSettings(*workspace);
    workspace->interface_languages = {.names = {"first", "second"}, .chosen = 0};
    workspace->LanguageName = "first";
    LoadLanguageFile(*workspace, "first.lng");
    fuzz::FuzzDialogs dialogs;
    ChooseInterfaceLanguage(*workspace, dialogs, 1);
    std::string chosen;
    ReadSettings(folders.settings, chosen);
    fuzz::Require(chosen == workspace->LanguageName, "the settings keep the language in use");
  });
}

}  // namespace vendlingua
