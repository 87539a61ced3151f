#include "core/presentation/menu_state.h"

#include <gmock/gmock.h>

#include <cstddef>

namespace vendlingua {
namespace {

TEST(MenuState, OffersNothingThatNeedsAFileAtStartUp) {
  const MenuState menus;
  EXPECT_FALSE(menus.mnuOrig.enabled);
  EXPECT_FALSE(menus.mnuDest.enabled);
  EXPECT_FALSE(menus.mnuMake.enabled);
  EXPECT_FALSE(menus.mnuSave.enabled);
  EXPECT_FALSE(menus.mnuSaas.enabled);
  EXPECT_FALSE(menus.mnuTLCD.enabled);
  EXPECT_TRUE(menus.mnuOpen.enabled);
  EXPECT_TRUE(menus.mnuEsci.enabled);
}

TEST(MenuState, HoldsOneSpecialEntryAndOneHundredHiddenLanguages) {
  const MenuState menus;
  EXPECT_EQ(menus.mnuDes.size(), 101U);
  for (const MenuState::LanguageMenu* menu : {&menus.mnuori, &menus.mnuDes, &menus.mnuNew}) {
    EXPECT_TRUE(menu->front().visible);
    for (std::size_t i = 1; i < menu->size(); ++i) {
      EXPECT_FALSE((*menu)[i].visible) << i;
      EXPECT_EQ((*menu)[i].caption, "") << i;
    }
  }
}

TEST(MenuState, OffersTheBuiltInOrigin) { EXPECT_EQ(MenuState().mnuori[0].caption, "Italiano"); }

TEST(MenuState, HasNoDisplayTypeChosenYet) {
  const MenuState menus;
  EXPECT_FALSE(menus.DisplayTypeChosen);
  for (const MenuEntry& entry : menus.mnuLCD) {
    EXPECT_FALSE(entry.checked) << entry.caption;
  }
}

TEST(MenuState, NumbersANewLanguageAboveAllEntries) { EXPECT_EQ(kNewLanguage, 101); }

}  // namespace
}  // namespace vendlingua
