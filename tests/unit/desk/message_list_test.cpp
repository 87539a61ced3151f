#include "core/desk/message_list.h"

#include <gmock/gmock.h>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;
using testing::ElementsAre;
using testing::IsEmpty;

// Messages 1 and 3 are to do.
class MessageListTest : public testing::Test {
 protected:
  MessageListTest() {
    set_.CurrentFileType = kMesType;
    set_.phase = Phase::kDestinationOpen;
    set_.LastCol = 5;
    set_.LastMsg = 3;
    Put(0, "TE", "TEA");
    Put(1, "CAFFE", "CAFFE");
    Put(2, "LATTE", "MILK");
    Put(3, "ACQUA", "");
    set_.opened_texts = set_.DestText;
  }

  void Put(std::size_t message, const char* origin, const char* destination) {
    set_.OriginText[message] = DisplayText(Codes(origin));
    set_.DestText[message] = DisplayText(Codes(destination));
  }

  MessageSet set_;
  LiveFindings findings_;
  DocumentMarks marks_;
};

TEST_F(MessageListTest, ListsNothingWithoutAnOrigin) {
  set_.phase = Phase::kFileOpen;
  EXPECT_THAT(ListMessages(set_, findings_, marks_, {}), IsEmpty());
}

TEST_F(MessageListTest, ListsAllMessagesByNumber) {
  EXPECT_THAT(ListMessages(set_, findings_, marks_, {}), ElementsAre(0, 1, 2, 3));
  EXPECT_THAT(ListMessages(set_, findings_, marks_, {.descending = true}), ElementsAre(3, 2, 1, 0));
}

TEST_F(MessageListTest, ListsWhatIsToDo) {
  EXPECT_THAT(ListMessages(set_, findings_, marks_, {.filter = MessageFilter::kToDo}),
              ElementsAre(1, 3));
}

TEST_F(MessageListTest, ListsWhatWasChanged) {
  set_.SetText(2, Codes("LAIT"));
  EXPECT_THAT(ListMessages(set_, findings_, marks_, {.filter = MessageFilter::kChanged}),
              ElementsAre(2));
}

TEST_F(MessageListTest, SortsByTheTexts) {
  EXPECT_THAT(ListMessages(set_, findings_, marks_, {.order = MessageOrder::kOrigin}),
              ElementsAre(3, 1, 2, 0));
  EXPECT_THAT(ListMessages(set_, findings_, marks_, {.order = MessageOrder::kDestination}),
              ElementsAre(3, 1, 2, 0));
}

TEST_F(MessageListTest, SortsByTheCellsThatAreUsed) {
  EXPECT_THAT(ListMessages(set_, findings_, marks_, {.order = MessageOrder::kCells}),
              ElementsAre(3, 0, 2, 1));
}

TEST_F(MessageListTest, EqualsStandByTheirNumbers) {
  EXPECT_THAT(ListMessages(set_, findings_, marks_, {.order = MessageOrder::kState}),
              ElementsAre(1, 3, 0, 2));
  EXPECT_THAT(
      ListMessages(set_, findings_, marks_, {.order = MessageOrder::kState, .descending = true}),
      ElementsAre(0, 2, 1, 3));
}

TEST_F(MessageListTest, FindsTheNextToDoAllAround) {
  EXPECT_EQ(NextToDo(set_, 0), 1U);
  EXPECT_EQ(NextToDo(set_, 1), 3U);
  EXPECT_EQ(NextToDo(set_, 3), 1U);
  EXPECT_EQ(PreviousToDo(set_, 0), 3U);
  EXPECT_EQ(PreviousToDo(set_, 3), 1U);
}

TEST_F(MessageListTest, FindsNoOtherToDo) {
  set_.SetText(1, Codes("COFFEE"));
  EXPECT_EQ(NextToDo(set_, 3), std::nullopt);
  EXPECT_EQ(PreviousToDo(set_, 3), std::nullopt);
  EXPECT_EQ(NextToDo(set_, 0), 3U);
}

}  // namespace
}  // namespace vendlingua
