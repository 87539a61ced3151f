#include "core/operations/settings.h"

#include <exception>
#include <optional>
#include <system_error>

#include "core/formats/settings_file.h"
#include "core/platform/errors.h"
#include "core/platform/file_access.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

std::optional<std::string> LanguageIn(const fs::path& file) {
  try {
    return ParseSettings(ReadFile(file));
  } catch (const std::exception&) {
    // A first start has no settings yet.
    return std::nullopt;
  }
}

}  // namespace

void ReadSettings(const fs::path& file, std::string& language_name) {
  language_name = LanguageIn(file).value_or(language_name);
}

void WriteSettings(const fs::path& file, const std::string& language_name) {
  std::error_code not_there;
  const fs::file_status status = fs::status(file, not_there);
  // A pipe would wait for a reader.
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    throw FileError(file, UiTextId::kNoWritableFile);
  }
  WriteFile(file, ComposeSettings(language_name));
}

void ReadSettings(Workspace& workspace) {
  const Folders& folders = workspace.folders;
  const auto beside = LanguageIn(folders.settings);
  const auto own = LanguageIn(folders.user_settings);
  // Where the file beside the program can be written, choices are kept there.
  const bool own_counts = own && !(beside && MayReplace(folders.settings));
  workspace.LanguageName = (own_counts ? own : beside).value_or(workspace.LanguageName);
}

void WriteSettings(const Workspace& workspace) {
  const Folders& folders = workspace.folders;
  const InterfaceLanguages& languages = workspace.interface_languages;
  if (!languages.chosen) {
    throw Error(UiTextId::kNoInterfaceLanguage);
  }
  const std::string& chosen = languages.names.at(*languages.chosen);
  std::error_code ignored;
  try {
    WriteSettings(folders.settings, chosen);
    fs::remove(folders.user_settings, ignored);
  } catch (const FileError&) {
    fs::create_directories(folders.user_settings.parent_path(), ignored);
    WriteSettings(folders.user_settings, chosen);
  }
}

}  // namespace vendlingua
