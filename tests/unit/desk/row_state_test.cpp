#include "core/desk/row_state.h"

#include <gtest/gtest.h>

#include <string_view>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;

class RowStateTest : public testing::Test {
 protected:
  RowStateTest() {
    set_.CurrentFileType = kMesType;
    set_.LastCol = 5;
    set_.LastMsg = 2;
  }

  void Put(std::size_t message, std::string_view origin, std::string_view destination) {
    set_.OriginText[message] = DisplayText(Codes(origin));
    set_.DestText[message] = DisplayText(Codes(destination));
  }

  MessageSet set_;
};

TEST_F(RowStateTest, ABlankTranslationIsToDo) {
  Put(0, "CAFFE", "");
  EXPECT_TRUE(IsToDo(set_, 0));
}

TEST_F(RowStateTest, TheTextOfTheOriginIsToDo) {
  Put(0, "CAFFE", "CAFFE");
  EXPECT_TRUE(IsToDo(set_, 0));
}

TEST_F(RowStateTest, AnotherTextIsDone) {
  Put(0, "CAFFE", "COFFEE");
  EXPECT_FALSE(IsToDo(set_, 0));
}

TEST_F(RowStateTest, CellsOfTheBoardSayNothing) {
  Put(0, "A\xFE\xFE", "\x20\xFE\xFE");
  EXPECT_TRUE(IsToDo(set_, 0));
  Put(1, " \xFE\xFE", " \xFE\xFE");
  EXPECT_FALSE(IsToDo(set_, 1));
}

TEST_F(RowStateTest, ABlankOriginLeavesNothingToDo) {
  Put(0, "", "");
  EXPECT_FALSE(IsToDo(set_, 0));
}

TEST_F(RowStateTest, CellsBehindTheMessageDoNotCount) {
  Put(0, "CAFFE X", "CAFFE Y");
  EXPECT_TRUE(IsToDo(set_, 0));
}

TEST_F(RowStateTest, CountsTheCellsUpToTheLastCharacter) {
  Put(0, "A", " TEA  ");
  EXPECT_EQ(CellsUsed(set_, 0), 4U);
  Put(0, "A   \xFE", "TEA \xFE ");
  EXPECT_EQ(CellsUsed(set_, 0), 5U);
}

TEST_F(RowStateTest, AnEditIsAChangeUntilItIsTakenBack) {
  Put(1, "CAFFE", "COFFEE");
  set_.TakeDestination(MessageTexts(set_.DestText), 1);
  EXPECT_FALSE(IsChanged(set_, 1));
  set_.SetText(1, Codes("CAFE"));
  EXPECT_TRUE(IsChanged(set_, 1));
  EXPECT_FALSE(IsChanged(set_, 0));
  set_.Undo();
  EXPECT_FALSE(IsChanged(set_, 1));
}

TEST_F(RowStateTest, AChangeStaysOneWhenItIsSaved) {
  set_.TakeDestination(MessageTexts(set_.DestText), 1);
  set_.SetText(1, Codes("CAFE"));
  set_.NoteSaved();
  EXPECT_TRUE(IsChanged(set_, 1));
}

TEST_F(RowStateTest, CountsWhatIsTranslated) {
  Put(0, "ONE", "EINS");
  Put(1, "TWO", "");
  Put(2, "", "");
  const Progress progress = ProgressOf(set_);
  EXPECT_EQ(progress.done, 2U);
  EXPECT_EQ(progress.messages, 3U);
}

}  // namespace
}  // namespace vendlingua
