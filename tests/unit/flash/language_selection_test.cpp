#include "core/flash/language_selection.h"

#include <gmock/gmock.h>

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LanguageSelectionTest : public testing::Test {
 protected:
  LanguageSelectionTest() {
    workspace_.set.CurrentFileType = kMesType;
    workspace_.set.LangCount = 2;
    int number = 0;
    for (const char* name : {"Default", "ITALIANO", "ENGLISH", "DEUTSCH"}) {
      MenuEntry& entry = workspace_.menus.mnuDes.at(static_cast<std::size_t>(number++));
      entry.caption = name;
      entry.visible = true;
    }
  }

  void Tick(int language, bool ticked = true) {
    TickEntry(compiler_, language, ticked, workspace_.set.LangCount);
  }

  // The entries of the four languages that `property` holds for.
  std::string Entries(bool CompilerState::Entry::*property) const {
    std::string numbers;
    for (std::size_t i = 1; i < compiler_.Check1.size(); ++i) {
      numbers += compiler_.Check1[i].*property ? std::to_string(i) : "";
    }
    return numbers;
  }

  Workspace workspace_;
  CompilerState compiler_;
};

TEST_F(LanguageSelectionTest, ShowsOneEntryALanguage) {
  LoadEntries(workspace_, compiler_);
  EXPECT_EQ(Entries(&CompilerState::Entry::visible), "123");
  EXPECT_EQ(compiler_.Check1[1].caption, "ITALIANO");
  EXPECT_EQ(compiler_.Check1[3].caption, "DEUTSCH");
}

TEST_F(LanguageSelectionTest, ShowsNoLanguageThatTheDestinationMenuHides) {
  workspace_.menus.mnuDes[2].visible = false;
  LoadEntries(workspace_, compiler_);
  EXPECT_EQ(Entries(&CompilerState::Entry::visible), "13");
}

TEST_F(LanguageSelectionTest, ShowsUpTo100Languages) {
  for (MenuEntry& entry : workspace_.menus.mnuDes) {
    entry.visible = true;
  }
  LoadEntries(workspace_, compiler_);
  EXPECT_TRUE(compiler_.Check1[100].visible);
}

TEST_F(LanguageSelectionTest, StartsWithNothingTicked) {
  LoadEntries(workspace_, compiler_);
  Tick(1);
  Tick(2);
  LoadEntries(workspace_, compiler_);
  EXPECT_THAT(compiler_.TickedLanguages(), IsEmpty());
  EXPECT_FALSE(compiler_.Command1Enabled);
  EXPECT_TRUE(compiler_.Check1[3].enabled);
}

TEST_F(LanguageSelectionTest, NeedsNoSelectionForAMsxFile) {
  workspace_.set.CurrentFileType = kMsxType;
  LoadEntries(workspace_, compiler_);
  EXPECT_EQ(Entries(&CompilerState::Entry::visible), "");
  EXPECT_TRUE(compiler_.Command1Enabled);
}

TEST_F(LanguageSelectionTest, ForgetsTheEntriesOfTheFileBefore) {
  LoadEntries(workspace_, compiler_);
  workspace_.set.CurrentFileType = kMsxType;
  LoadEntries(workspace_, compiler_);
  EXPECT_EQ(Entries(&CompilerState::Entry::visible), "");
}

TEST_F(LanguageSelectionTest, EnablesCompileAndDisablesTheRestWhenEnoughAreTicked) {
  LoadEntries(workspace_, compiler_);
  Tick(1);
  Tick(3);
  EXPECT_TRUE(compiler_.Command1Enabled);
  EXPECT_EQ(Entries(&CompilerState::Entry::enabled), "13");
}

TEST_F(LanguageSelectionTest, EnablesAllAgainWhenOneIsUnticked) {
  LoadEntries(workspace_, compiler_);
  Tick(1);
  Tick(3);
  Tick(1, false);
  EXPECT_FALSE(compiler_.Command1Enabled);
  EXPECT_TRUE(compiler_.Check1[1].enabled);
  EXPECT_TRUE(compiler_.Check1[2].enabled);
  EXPECT_THAT(compiler_.TickedLanguages(), ElementsAre(3));
}

TEST_F(LanguageSelectionTest, DisablesCompileWhileTooFewAreTicked) {
  LoadEntries(workspace_, compiler_);
  Tick(2);
  EXPECT_FALSE(compiler_.Command1Enabled);
  EXPECT_TRUE(compiler_.Check1[1].enabled);
}

TEST_F(LanguageSelectionTest, GivesTheTickedLanguagesInAscendingOrder) {
  LoadEntries(workspace_, compiler_);
  Tick(3);
  Tick(1);
  EXPECT_THAT(compiler_.TickedLanguages(), ElementsAre(1, 3));
}

}  // namespace
}  // namespace vendlingua
