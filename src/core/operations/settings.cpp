#include "core/operations/settings.h"

#include <algorithm>
#include <string_view>
#include <system_error>

#include "core/document/display_code.h"
#include "core/formats/text_lines.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

constexpr std::string_view kKey = "Lingua=";

}  // namespace

void ReadSettings(const std::filesystem::path& file, std::string& language_name) {
  try {
    const std::string content = ReadFile(file);
    const auto line = TextLines(content).Next();
    if (line && line->text.size() >= kKey.size()) {
      language_name = ToUtf8(CodesFromBytes(line->text.substr(kKey.size())));
    }
  } catch (const FileError&) {
    // A first start has no settings yet.
  }
}

void WriteSettings(const std::filesystem::path& file, const std::string& language_name) {
  WriteFile(file, std::string(kKey) + BytesFromCodes(ToDisplayCodes(language_name).codes) + "\r\n");
}

void ReadSettings(Workspace& workspace) {
  ReadSettings(workspace.folders.settings, workspace.LanguageName);
  ReadSettings(workspace.folders.user_settings, workspace.LanguageName);
}

void WriteSettings(const Workspace& workspace) {
  const Folders& folders = workspace.folders;
  const InterfaceLanguages& languages = workspace.interface_languages;
  if (!languages.chosen) {
    throw Error("No interface language is chosen: the settings cannot be written.");
  }
  const std::string& chosen = languages.names.at(*languages.chosen);
  std::error_code ignored;
  try {
    WriteSettings(folders.settings, chosen);
    std::filesystem::remove(folders.user_settings, ignored);
  } catch (const FileError&) {
    std::filesystem::create_directories(folders.user_settings.parent_path(), ignored);
    WriteSettings(folders.user_settings, chosen);
  }
}

}  // namespace vendlingua
