#include "core/operations/interface_language.h"

#include <string_view>

#include "core/document/display_code.h"
#include "core/formats/text_lines.h"
#include "core/operations/settings.h"
#include "core/platform/files.h"
#include "core/texts/reference_language.h"

namespace vendlingua {
namespace {

constexpr std::string_view kSectionMark = ";--";

std::string FromFile(std::string_view line) { return ToUtf8(CodesFromBytes(line)); }

std::string ReadFromDisk(const Workspace& workspace, const std::string& file_name) {
  return ReadFile(LanguageFile(workspace.folders.program, file_name), kLanguageFileLimit);
}

std::string ReadLanguageFile(const Workspace& workspace, const std::string& file_name) {
  try {
    return ReadFromDisk(workspace, file_name);
  } catch (const FileError&) {
    if (file_name != kReferenceLanguageFile) {
      throw;
    }
    return std::string(ReferenceLanguage());
  }
}

// As CheckLanguageFile, but a file that cannot be read leaves the texts as they were.
bool LoadIfItFits(Workspace& workspace, const std::string& current, const std::string& candidate) {
  const UiText texts_before = workspace.ui_text;
  try {
    return CheckLanguageFile(workspace, current, candidate);
  } catch (const FileError&) {
    workspace.ui_text = texts_before;
    throw;
  }
}

}  // namespace

std::optional<FileError> DefectOf(const Workspace& workspace, const std::string& file_name) {
  try {
    ReadFromDisk(workspace, file_name);
    return std::nullopt;
  } catch (const FileError& error) {
    return error;
  }
}

void LoadLanguageFile(Workspace& workspace, const std::string& file_name) {
  const std::string content = ReadLanguageFile(workspace, file_name);
  TextLines lines(content);
  while (const auto line = lines.Next()) {
    workspace.ui_text.Set(lines.count(), FromFile(line->text));
  }
}

bool CheckLanguageFile(Workspace& workspace, const std::string& current,
                       const std::string& candidate) {
  const std::string current_content = ReadLanguageFile(workspace, current);
  const std::string candidate_content = ReadLanguageFile(workspace, candidate);
  TextLines current_lines(current_content);
  TextLines candidate_lines(candidate_content);
  while (const auto a = current_lines.Next()) {
    const auto b = candidate_lines.Next();
    if (!b || (a->text.starts_with(kSectionMark) && !b->text.starts_with(kSectionMark))) {
      return false;
    }
    workspace.ui_text.Set(candidate_lines.count(), FromFile(b->text));
  }
  return true;
}

void ChooseInterfaceLanguage(Workspace& workspace, Dialogs& dialogs, std::size_t index) {
  InterfaceLanguages& languages = workspace.interface_languages;
  const std::string previous = languages.names.at(languages.chosen.value_or(0));
  const std::string candidate = languages.names.at(index);
  const bool fits =
      LoadIfItFits(workspace, LanguageFileName(previous), LanguageFileName(candidate));
  if (fits) {
    languages.chosen = index;
    workspace.LanguageName = candidate;
  } else {
    LoadLanguageFile(workspace, LanguageFileName(previous));
    const UiText& ui_text = workspace.ui_text;
    dialogs.MessageBox({MessageIcon::kExclamation, ui_text[UiTextId::kLanguageFileRefused],
                        ui_text[UiTextId::kLanguageFileTitle]});
  }
  // From now on the entry of the menus is named in the interface language.
  workspace.window.file_names_entry_0 = false;
  WriteSettings(workspace);
}

}  // namespace vendlingua
