#ifndef VENDLINGUA_CORE_PRESENTATION_MENU_STATE_H_
#define VENDLINGUA_CORE_PRESENTATION_MENU_STATE_H_

#include <array>
#include <cstddef>
#include <string>

namespace vendlingua {

/// What a menu entry shows, as plain data: the operations read and write it, the window mirrors it.
struct MenuEntry {
  std::string caption;  ///< UTF-8; "&" marks the mnemonic
  bool visible = true;
  bool enabled = true;
  bool checked = false;
};

/// Language menus: entry 0 is special, entries 1 to 100 are the languages of the file.
inline constexpr std::size_t kLanguageEntries = 101;
/// The number that a new destination language goes by until it is saved: above all entries.
inline constexpr int kNewLanguage = 101;
inline constexpr std::size_t kInterfaceLanguages = 10;
inline constexpr std::size_t kDisplayTypes = 4;

/// All menus of the main window, under the names of their entries.
struct MenuState {
  using LanguageMenu = std::array<MenuEntry, kLanguageEntries>;

  /// The menus as designed: no file is open.
  MenuState();

  MenuEntry mnuFile, mnuOpen, mnuSave, mnuSaas, mnuEsci;
  MenuEntry mnuOrig, mnuDest, mnuMake, mnuTLCD, mnuLingue;
  MenuEntry mnuInf;
  MenuEntry mCopy, mnuAbor, mnuCopy;
  LanguageMenu mnuori;  ///< origin languages
  LanguageMenu mnuDes;  ///< destination languages
  LanguageMenu mnuNew;  ///< starting points of a new destination language
  std::array<MenuEntry, kDisplayTypes> mnuLCD;
  std::array<MenuEntry, kInterfaceLanguages> smnuLingue;

  /// A display type was chosen since the start or since the last file was read: the next other
  /// choice is a change of the set.
  bool DisplayTypeChosen = false;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PRESENTATION_MENU_STATE_H_
