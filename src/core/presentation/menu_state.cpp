#include "core/presentation/menu_state.h"

namespace vendlingua {

MenuState::MenuState() {
  for (MenuEntry* menu : {&mnuOrig, &mnuDest, &mnuMake, &mnuSave, &mnuSaas, &mnuTLCD}) {
    menu->enabled = false;
  }
  for (LanguageMenu* menu : {&mnuori, &mnuDes, &mnuNew}) {
    for (std::size_t i = 1; i < menu->size(); ++i) {
      (*menu)[i].visible = false;
    }
  }
  for (std::size_t i = 1; i < smnuLingue.size(); ++i) {
    smnuLingue[i].visible = false;
  }
  mnuori[0].caption = "Italiano";
  mnuLCD[0].caption = "Normal";
  mnuLCD[1].caption = "Cyrillic";
  mnuLCD[2].caption = "&KTV";
  mnuLCD[3].caption = "Jewish";
  mnuInf.caption = "&?";
}

}  // namespace vendlingua
