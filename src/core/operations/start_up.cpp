#include "core/operations/start_up.h"

#include <algorithm>
#include <array>
#include <exception>
#include <filesystem>
#include <optional>
#include <string_view>
#include <utility>

#include "core/operations/interface_language.h"
#include "core/operations/language_files.h"
#include "core/operations/settings.h"
#include "core/platform/errors.h"
#include "core/texts/ascii_case.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, kDisplayTypes> kFontNames = {"LCD", "LCD_CY", "LCD KTV",
                                                                    "LCD HBR"};

}  // namespace

int FontMask(std::span<const std::string> families) {
  int mask = 0;
  for (const std::string& family : families) {
    const auto* found = std::find(kFontNames.begin(), kFontNames.end(), UpperCase(family));
    if (found != kFontNames.end()) {
      mask |= 1 << (found - kFontNames.begin());
    }
  }
  return mask;
}

StartUp::StartUp(Workspace& workspace, Dialogs& dialogs, const FontList& fonts)
    : workspace_(workspace), dialogs_(dialogs), fonts_(fonts) {}

bool StartUp::Form_Load() try {
  Folders& folders = workspace_.folders;
  folders.current = folders.program;
  if (LanguageNames(folders.program).empty()) {
    ReportMissingFile();
    return false;
  }
  LoadLanguageFile(workspace_, std::string(kReferenceLanguageFile));
  if (FontMask(fonts_.Families()) != kAllDisplayFonts) {
    const UiText& ui_text = workspace_.ui_text;
    dialogs_.MessageBox({MessageIcon::kCritical,
                         ui_text[UiTextId::kFontsMissing] + "\n" + ui_text[UiTextId::kInstallFonts],
                         ui_text[UiTextId::kErrorTitle]});
    return false;
  }
  folders.current = folders.program;
  ReadSettings(workspace_);
  return CeckLingue();
} catch (const std::exception& error) {
  dialogs_.MessageBox({MessageIcon::kCritical, MessageOf(error, workspace_.ui_text), "ERROR"});
  return false;
}

bool StartUp::CeckLingue() {
  std::vector<std::string> names = LanguageNames(workspace_.folders.current);
  if (names.empty()) {
    ReportMissingFile();
    return false;
  }
  names = UsableOf(std::move(names));
  InterfaceLanguages& languages = workspace_.interface_languages;
  languages.names = names;
  languages.names.resize(std::min(names.size(), InterfaceLanguages::kMost));
  std::string& language = workspace_.LanguageName;
  const auto found = std::find(languages.names.begin(), languages.names.end(), language);
  const auto index = static_cast<std::size_t>(found - languages.names.begin());
  // The tenth is listed and can be chosen, but is not found again.
  languages.chosen =
      index < languages.names.size() && index < InterfaceLanguages::kMost - 1 ? index : 0;
  const std::string& chosen = languages.names.at(*languages.chosen);
  LoadLanguageFile(workspace_, LanguageFileName(chosen));
  language = chosen;
  return true;
}

std::vector<std::string> StartUp::UsableOf(std::vector<std::string> names) {
  std::string defects;
  const auto is_unusable = [&](const std::string& name) {
    const std::optional<FileError> defect = DefectOf(workspace_, LanguageFileName(name));
    defects += defect ? "\n" + defect->In(workspace_.ui_text) : "";
    return defect.has_value();
  };
  const std::string reference = fs::path(kReferenceLanguageFile).stem().string();
  is_unusable(reference);
  names.erase(std::remove_if(
                  names.begin(), names.end(),
                  [&](const std::string& name) { return name != reference && is_unusable(name); }),
              names.end());
  if (names.empty()) {
    names.push_back(reference);
  }
  if (!defects.empty()) {
    dialogs_.MessageBox({MessageIcon::kExclamation,
                         workspace_.ui_text[UiTextId::kLanguageFilesLeftOut] + defects,
                         workspace_.ui_text[UiTextId::kLanguageFileTitle]});
  }
  return names;
}

void StartUp::ReportMissingFile() {
  dialogs_.MessageBox({MessageIcon::kCritical, "File missing!\nReinstall program", "Error"});
}

}  // namespace vendlingua
