#include "core/operations/interface_language.h"

#include <string_view>

#include "core/document/display_code.h"
#include "core/formats/text_lines.h"
#include "core/operations/settings.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

constexpr std::string_view kSectionMark = ";--";

std::string FromFile(std::string_view line) { return ToUtf8(CodesFromBytes(line)); }

std::string FileOf(const MenuEntry& language) {
  return language.caption + std::string(kLanguageFileExtension);
}

std::size_t CheckedLanguage(const MenuState& menus) {
  std::size_t checked = 0;
  for (std::size_t i = 0; i < menus.smnuLingue.size(); ++i) {
    if (menus.smnuLingue[i].checked) {
      checked = i;
    }
  }
  return checked;
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

void LoadLanguageFile(Workspace& workspace, const std::string& file_name) {
  const std::string content = ReadFile(workspace.folders.program / file_name);
  TextLines lines(content);
  while (const auto line = lines.Next()) {
    workspace.ui_text.Set(lines.count(), FromFile(line->text));
  }
}

bool CheckLanguageFile(Workspace& workspace, const std::string& current,
                       const std::string& candidate) {
  const std::string current_content = ReadFile(workspace.folders.program / current);
  const std::string candidate_content = ReadFile(workspace.folders.program / candidate);
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

void InitMenu(Workspace& workspace) {
  const UiText& ui_text = workspace.ui_text;
  MenuState& menus = workspace.menus;
  menus.mnuFile.caption = ui_text[1];
  menus.mnuOpen.caption = ui_text[2];
  menus.mnuSave.caption = ui_text[3];
  menus.mnuSaas.caption = ui_text[4];
  menus.mnuEsci.caption = ui_text[5];
  menus.mnuOrig.caption = ui_text[6];
  menus.mnuDest.caption = ui_text[7];
  menus.mnuDes[0].caption = ui_text[8];
  menus.mnuNew[0].caption = ui_text[8];
  menus.mnuMake.caption = ui_text[9];
  menus.mnuTLCD.caption = ui_text[10];
  menus.mnuLCD[0].caption = ui_text[11];
  menus.mnuLCD[1].caption = ui_text[12];
  menus.mnuLingue.caption = ui_text[13];
  menus.mCopy.caption = ui_text[14];
  menus.mnuAbor.caption = ui_text[15];
  menus.mnuCopy.caption = ui_text[16];
  menus.mnuLCD[3].caption = ui_text[17];
}

void ChooseInterfaceLanguage(Workspace& workspace, Dialogs& dialogs, std::size_t index) {
  auto& entries = workspace.menus.smnuLingue;
  const std::size_t previous = CheckedLanguage(workspace.menus);
  const bool fits = LoadIfItFits(workspace, FileOf(entries[previous]), FileOf(entries.at(index)));
  const std::size_t chosen = fits ? index : previous;
  for (MenuEntry& entry : entries) {
    entry.checked = false;
  }
  entries[chosen].checked = true;
  workspace.LanguageName = entries[chosen].caption;
  if (!fits) {
    LoadLanguageFile(workspace, FileOf(entries[previous]));
    const UiText& ui_text = workspace.ui_text;
    dialogs.MessageBox({MessageIcon::kExclamation, ui_text[37], ui_text[36]});
  }
  InitMenu(workspace);
  WriteSettings(workspace);
}

}  // namespace vendlingua
