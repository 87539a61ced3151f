#include "core/presentation/menu_state.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <string>

namespace vendlingua {
namespace {

TEST(MenuState, OffersNothingThatNeedsAFileAtStartUp) {
  const MenuState menus = MenusOf(Workspace());
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
  const MenuState menus = MenusOf(Workspace());
  EXPECT_EQ(menus.mnuDes.size(), 101U);
  for (const MenuState::LanguageMenu* menu : {&menus.mnuori, &menus.mnuDes, &menus.mnuNew}) {
    EXPECT_TRUE(menu->front().visible);
    for (std::size_t i = 1; i < menu->size(); ++i) {
      EXPECT_FALSE((*menu)[i].visible) << i;
      EXPECT_EQ((*menu)[i].caption, "") << i;
    }
  }
}

TEST(MenuState, OffersTheBuiltInOrigin) {
  EXPECT_EQ(MenusOf(Workspace()).mnuori[0].caption, "Italiano");
}

TEST(MenuState, HasNoDisplayTypeChosenYet) {
  const MenuState menus = MenusOf(Workspace());
  for (const MenuEntry& entry : menus.mnuLCD) {
    EXPECT_FALSE(entry.checked) << entry.caption;
  }
}

class InitMenuTest : public testing::Test {
 protected:
  InitMenuTest() {
    for (std::size_t number = 1; number <= 46; ++number) {
      workspace_.ui_text.Set(number, "text " + std::to_string(number));
    }
  }

  MenuState menus() const { return MenusOf(workspace_); }

  Workspace workspace_;
};

TEST_F(InitMenuTest, CaptionsEveryMenuWithItsEntry) {
  EXPECT_EQ(menus().mnuFile.caption, "text 1");
  EXPECT_EQ(menus().mnuOpen.caption, "text 2");
  EXPECT_EQ(menus().mnuSave.caption, "text 3");
  EXPECT_EQ(menus().mnuSaas.caption, "text 4");
  EXPECT_EQ(menus().mnuEsci.caption, "text 5");
  EXPECT_EQ(menus().mnuOrig.caption, "text 6");
  EXPECT_EQ(menus().mnuDest.caption, "text 7");
  EXPECT_EQ(menus().mnuMake.caption, "text 9");
  EXPECT_EQ(menus().mnuTLCD.caption, "text 10");
  EXPECT_EQ(menus().mnuLingue.caption, "text 13");
  EXPECT_EQ(menus().mCopy.caption, "text 14");
  EXPECT_EQ(menus().mnuAbor.caption, "text 15");
  EXPECT_EQ(menus().mnuCopy.caption, "text 16");
}

TEST_F(InitMenuTest, CaptionsEntryZeroOfDestinationsAndNewLanguagesAlike) {
  EXPECT_EQ(menus().mnuDes[0].caption, "text 8");
  EXPECT_EQ(menus().mnuNew[0].caption, "text 8");
}

TEST_F(InitMenuTest, CaptionsThreeOfTheDisplayTypes) {
  EXPECT_EQ(menus().mnuLCD[0].caption, "text 11");
  EXPECT_EQ(menus().mnuLCD[1].caption, "text 12");
  EXPECT_EQ(menus().mnuLCD[3].caption, "text 17");
}

TEST_F(InitMenuTest, KeepsTheCaptionsOfTheDesign) {
  EXPECT_EQ(menus().mnuLCD[2].caption, "&KTV");
  EXPECT_EQ(menus().mnuInf.caption, "&?");
  EXPECT_EQ(menus().mnuori[0].caption, "Italiano");
}

TEST(MenuState, NumbersANewLanguageAboveAllEntries) { EXPECT_EQ(kNewLanguage, 101); }

}  // namespace
}  // namespace vendlingua
