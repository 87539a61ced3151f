#ifndef VENDLINGUA_CORE_PRESENTATION_MENU_STATE_H_
#define VENDLINGUA_CORE_PRESENTATION_MENU_STATE_H_

#include <array>
#include <cstddef>
#include <string>

#include "core/document/workspace.h"

namespace vendlingua {

/// What a menu entry shows.
struct MenuEntry {
  std::string caption;  ///< UTF-8; "&" marks the mnemonic
  bool visible = true;
  bool enabled = true;
  bool checked = false;
};

/// All menus of the main window, under the names of their entries.
struct MenuState {
  /// Entry 0 is special, entries 1 to 100 are the languages of the file.
  using LanguageMenu = std::array<MenuEntry, kLanguageEntries>;

  MenuEntry mnuFile, mnuOpen, mnuSave, mnuSaas, mnuRecent, mnuDesk, mnuEsci;
  MenuEntry mnuOrig, mnuDest, mnuMake, mnuTLCD, mnuLingue;
  MenuEntry mnuNewLanguage;
  MenuEntry mnuHelp;
  MenuEntry mnuInf;
  MenuEntry mCopy, mnuAbor, mnuCopy, mnuUndo, mnuRedo;
  LanguageMenu mnuori;  ///< origin languages
  LanguageMenu mnuDes;  ///< destination languages
  LanguageMenu mnuNew;  ///< starting points of a new destination language
  std::array<MenuEntry, kDisplayTypes> mnuLCD;
  std::array<MenuEntry, InterfaceLanguages::kMost> smnuLingue;
};

/// The menus for what is open, captioned in the interface language.
MenuState MenusOf(const Workspace& workspace);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PRESENTATION_MENU_STATE_H_
