#include "core/presentation/menu_state.h"

namespace vendlingua {
namespace {

void InitMenu(const UiText& ui_text, MenuState& menus) {
  menus.mnuFile.caption = ui_text[UiTextId::kFileMenu];
  menus.mnuOpen.caption = ui_text[UiTextId::kOpen];
  menus.mnuSave.caption = ui_text[UiTextId::kSave];
  menus.mnuSaas.caption = ui_text[UiTextId::kSaveAs];
  menus.mnuRecent.caption = ui_text[UiTextId::kRecentFiles];
  menus.mnuDesk.caption = ui_text[UiTextId::kDesk];
  menus.mnuEsci.caption = ui_text[UiTextId::kExit];
  menus.mnuOrig.caption = ui_text[UiTextId::kOriginMenu];
  menus.mnuDest.caption = ui_text[UiTextId::kDestinationMenu];
  menus.mnuDes[0].caption = ui_text[UiTextId::kNewLanguageEntry];
  menus.mnuNew[0].caption = ui_text[UiTextId::kNewLanguageEntry];
  menus.mnuNewLanguage.caption = ui_text[UiTextId::kNameNewLanguage];
  menus.mnuMake.caption = ui_text[UiTextId::kCompileMenu];
  menus.mnuTLCD.caption = ui_text[UiTextId::kDisplayTypeMenu];
  menus.mnuLCD[0].caption = ui_text[UiTextId::kDisplayNormal];
  menus.mnuLCD[1].caption = ui_text[UiTextId::kDisplayCyrillic];
  menus.mnuLCD[2].caption = "&KTV";
  menus.mnuLingue.caption = ui_text[UiTextId::kInterfaceLanguageMenu];
  menus.mnuHelp.caption = ui_text[UiTextId::kHelp];
  menus.mnuInf.caption = "&?";
  menus.mCopy.caption = ui_text[UiTextId::kCopyMenu];
  menus.mnuAbor.caption = ui_text[UiTextId::kAbort];
  menus.mnuCopy.caption = ui_text[UiTextId::kCopy];
  menus.mnuUndo.caption = ui_text[UiTextId::kUndo];
  menus.mnuRedo.caption = ui_text[UiTextId::kRedo];
  menus.mnuLCD[3].caption = ui_text[UiTextId::kDisplayHebrew];
}

void EnableByPhase(const MessageSet& set, MenuState& menus) {
  const bool file_open = set.phase >= Phase::kFileOpen;
  menus.mnuOrig.enabled = file_open;
  menus.mnuMake.enabled = file_open;
  menus.mnuNew[0].enabled = !file_open;
  menus.mnuDest.enabled = set.phase >= Phase::kOriginChosen;
  menus.mnuDes[0].enabled = set.IsMes() && !set.IsFull();
  menus.mnuNewLanguage.enabled = set.IsMes() && !set.IsFull();
  menus.mnuTLCD.enabled = set.DestinationIsOpen();
  menus.mnuSaas.enabled = set.DestinationIsOpen();
  menus.mnuSave.enabled = set.FileIsThere();
  menus.mnuCopy.enabled = set.DestinationIsOpen();
  menus.mnuUndo.enabled = set.history.CanStepBack();
  menus.mnuRedo.enabled = set.history.CanStepForward();
}

void ShowLanguages(const Workspace& workspace, MenuState& menus) {
  const MessageSet& set = workspace.set;
  const auto& names = set.language_names;
  menus.mnuori[0].caption = names.empty() ? std::string(kBuiltInLanguage) : names[0];
  if (workspace.window.file_names_entry_0 && !names.empty()) {
    menus.mnuDes[0].caption = names[0];
    menus.mnuNew[0].caption = names[0];
  }
  menus.mnuori[0].checked = set.origin_language == 0;
  for (std::size_t k = 1; k < kLanguageEntries; ++k) {
    const bool is_origin = set.origin_language == static_cast<int>(k);
    const bool is_destination = set.DestinationIsOpen() && set.DestLang == k;
    const bool there = set.HoldsLanguage(static_cast<int>(k));
    const std::string name = there ? names[k] : "";
    const std::string start =
        set.IsMsx() && there ? workspace.ui_text[UiTextId::kCopyMenu] + " " + name : name;
    menus.mnuori.at(k) = {.caption = name, .visible = there, .checked = is_origin};
    menus.mnuDes.at(k) = {.caption = name, .visible = there, .checked = is_destination};
    menus.mnuNew.at(k) = {.caption = start, .visible = there};
  }
}

}  // namespace

MenuState MenusOf(const Workspace& workspace) {
  const MessageSet& set = workspace.set;
  MenuState menus;
  InitMenu(workspace.ui_text, menus);
  EnableByPhase(set, menus);
  ShowLanguages(workspace, menus);
  for (std::size_t i = 0; i < menus.mnuLCD.size(); ++i) {
    menus.mnuLCD.at(i).checked = set.DisplayTypeChosen && set.DisplayType == i;
  }
  const InterfaceLanguages& languages = workspace.interface_languages;
  for (std::size_t i = 0; i < menus.smnuLingue.size(); ++i) {
    const bool there = i < languages.names.size();
    menus.smnuLingue.at(i) = {.caption = there ? languages.names[i] : "",
                              .visible = there || i == 0,
                              .checked = languages.chosen == i};
  }
  return menus;
}

}  // namespace vendlingua
