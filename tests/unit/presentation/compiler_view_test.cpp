#include "core/presentation/compiler_view.h"

#include <gmock/gmock.h>

#include <string>

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CompilerViewTest : public testing::Test {
 protected:
  CompilerViewTest() {
    set_.CurrentFileType = kMesType;
    set_.LangCount = 2;
    set_.language_names = {"Default", "ITALIANO", "ENGLISH", "DEUTSCH"};
  }

  void Tick(std::size_t language, bool ticked = true) { state_.ticked.at(language) = ticked; }

  CompilerView view() const { return CompilerViewOf(set_, state_); }

  // The entries that `property` holds for.
  std::string Entries(bool CompilerView::Entry::*property) const {
    const CompilerView view = this->view();
    std::string numbers;
    for (std::size_t i = 1; i < view.Check1.size(); ++i) {
      numbers += view.Check1[i].visible && view.Check1[i].*property ? std::to_string(i) : "";
    }
    return numbers;
  }

  MessageSet set_;
  CompilerState state_;
};

TEST_F(CompilerViewTest, ShowsOneEntryALanguage) {
  EXPECT_EQ(Entries(&CompilerView::Entry::visible), "123");
  EXPECT_EQ(view().Check1[1].caption, "ITALIANO");
  EXPECT_EQ(view().Check1[3].caption, "DEUTSCH");
}

TEST_F(CompilerViewTest, ShowsNoEntryWithoutALanguage) {
  set_.language_names.pop_back();
  EXPECT_EQ(Entries(&CompilerView::Entry::visible), "12");
}

TEST_F(CompilerViewTest, ShowsUpTo100Languages) {
  set_.language_names.resize(kLanguageEntries, "X");
  EXPECT_TRUE(view().Check1[100].visible);
}

TEST_F(CompilerViewTest, StartsWithNothingTicked) {
  EXPECT_THAT(state_.TickedLanguages(), IsEmpty());
  EXPECT_FALSE(view().Command1Enabled);
  EXPECT_TRUE(view().Command2Enabled);
  EXPECT_EQ(Entries(&CompilerView::Entry::enabled), "123");
}

TEST_F(CompilerViewTest, NeedsNoSelectionForAMsxFile) {
  set_.CurrentFileType = kMsxType;
  EXPECT_EQ(Entries(&CompilerView::Entry::visible), "");
  EXPECT_TRUE(view().Command1Enabled);
}

TEST_F(CompilerViewTest, EnablesCompileAndDisablesTheRestWhenEnoughAreTicked) {
  Tick(1);
  Tick(3);
  EXPECT_TRUE(view().Command1Enabled);
  EXPECT_EQ(Entries(&CompilerView::Entry::enabled), "13");
}

TEST_F(CompilerViewTest, EnablesAllAgainWhenOneIsUnticked) {
  Tick(1);
  Tick(3);
  Tick(1, false);
  EXPECT_FALSE(view().Command1Enabled);
  EXPECT_EQ(Entries(&CompilerView::Entry::enabled), "123");
  EXPECT_THAT(state_.TickedLanguages(), ElementsAre(3));
}

TEST_F(CompilerViewTest, DisablesCompileWhileTooFewAreTicked) {
  Tick(2);
  EXPECT_FALSE(view().Command1Enabled);
  EXPECT_EQ(Entries(&CompilerView::Entry::enabled), "123");
}

TEST_F(CompilerViewTest, DisablesBothButtonsWhileTheCompilerWorks) {
  Tick(1);
  Tick(3);
  state_.busy = true;
  EXPECT_FALSE(view().Command1Enabled);
  EXPECT_FALSE(view().Command2Enabled);
}

TEST_F(CompilerViewTest, GivesTheTickedLanguagesInAscendingOrder) {
  Tick(3);
  Tick(1);
  EXPECT_THAT(state_.TickedLanguages(), ElementsAre(1, 3));
}

}  // namespace
}  // namespace vendlingua
