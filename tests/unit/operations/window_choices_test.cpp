#include "core/presentation/menu_state.h"
#include "unit/operations/editing_test.h"

namespace vendlingua {
namespace {

using test::EditingTest;

TEST_F(EditingTest, TogglesBetweenCompactAndFullHeight) {
  EXPECT_EQ(editing_.ToggleHeight(), -1000);
  EXPECT_EQ(view().height, 8535);
  EXPECT_EQ(editing_.ToggleHeight(), 1000);
  EXPECT_EQ(view().height, 2925);
}

TEST_F(EditingTest, TakesAHeightOf4000ForFull) {
  window_.height = 4000;
  EXPECT_EQ(editing_.ToggleHeight(), 1000);
  EXPECT_EQ(view().height, 2925);
  window_.height = 3999;
  EXPECT_EQ(editing_.ToggleHeight(), -1000);
  EXPECT_EQ(view().height, 8535);
}

class DisplayTypeTest : public EditingTest {
 protected:
  // The numbers of the checked entries.
  std::string Checked() const {
    std::string checked;
    const MenuState menus = MenusOf(workspace_);
    for (std::size_t i = 0; i < menus.mnuLCD.size(); ++i) {
      checked += menus.mnuLCD[i].checked ? std::to_string(i) : "";
    }
    return checked;
  }
};

TEST_F(DisplayTypeTest, ChecksExactlyTheChosenEntry) {
  for (std::size_t type = 0; type < 4; ++type) {
    editing_.ChooseDisplayType(type);
    EXPECT_EQ(Checked(), std::to_string(type));
  }
}

TEST_F(DisplayTypeTest, DoesNotMarkTheSetChangedForTheFirstChoice) {
  editing_.ChooseDisplayType(2);
  EXPECT_EQ(set_.Modified, kFalse);
  EXPECT_TRUE(set_.DisplayTypeChosen);
}

TEST_F(DisplayTypeTest, MarksTheSetChangedForASecondDifferentChoice) {
  editing_.ChooseDisplayType(2);
  editing_.ChooseDisplayType(1);
  EXPECT_EQ(set_.Modified, kTrue);
}

TEST_F(DisplayTypeTest, ChangesNothingForTheCheckedType) {
  editing_.ChooseDisplayType(2);
  editing_.ChooseDisplayType(2);
  EXPECT_EQ(set_.Modified, kFalse);
  EXPECT_EQ(Checked(), "2");
}

TEST_F(DisplayTypeTest, DoesNotMarkTheSetChangedWhenAFileBringsAnotherType) {
  editing_.ChooseDisplayType(2);
  set_.LoadDisplayType(3);
  EXPECT_EQ(set_.Modified, kFalse);
  EXPECT_EQ(Checked(), "3");
}

TEST_F(DisplayTypeTest, MarksTheSetChangedForAChoiceAfterLoading) {
  set_.LoadDisplayType(3);
  editing_.ChooseDisplayType(0);
  EXPECT_EQ(set_.Modified, kTrue);
}

TEST_F(DisplayTypeTest, SaysWhichTypesTheFileDoesNotKeep) {
  workspace_.ui_text.Set(static_cast<std::size_t>(UiTextId::kDisplayTypeNotKept), "not kept");
  set_.CurrentFileType = kMesType;
  editing_.ChooseDisplayType(2);
  EXPECT_EQ(window_.status, "");
  editing_.ChooseDisplayType(3);
  EXPECT_EQ(window_.status, "not kept");
  window_.status.clear();
  set_.CurrentFileType = kMsxType;
  editing_.ChooseDisplayType(0);
  EXPECT_EQ(window_.status, "not kept");
}

}  // namespace
}  // namespace vendlingua
