#include "unit/operations/editing_test.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::MesEditingTest;
using testing::SizeIs;

class AddMessageTest : public MesEditingTest {
 protected:
  AddMessageTest() { workspace_.ui_text.Set(40, "text 40"); }

  bool OfferedAt(std::size_t message) {
    editing_.GoTo(message);
    return view().Command2Visible;
  }
};

TEST_F(AddMessageTest, IsOfferedAtTheLastMessage) {
  EXPECT_TRUE(OfferedAt(2));
  EXPECT_FALSE(OfferedAt(1));
  EXPECT_TRUE(OfferedAt(2));
}

TEST_F(AddMessageTest, IsNotOfferedAtMessageZero) {
  set_.LastMsg = 0;
  EXPECT_FALSE(OfferedAt(0));
}

TEST_F(AddMessageTest, IsNotOfferedWhenTheLanguageHasNoSlotLeft) {
  set_.LangStride = 2;
  EXPECT_FALSE(OfferedAt(2));
}

TEST_F(AddMessageTest, IsOfferedBeyondTheTextsThatAResetEmpties) {
  set_.LangStride = 1000;
  set_.LastMsg = 512;
  EXPECT_TRUE(OfferedAt(512));
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  editing_.AddMessage(dialogs_);
  EXPECT_TRUE(OfferedAt(513));
}

TEST_F(AddMessageTest, IsNotOfferedWhileTheEditBoxIsDisabled) {
  set_.phase = Phase::kOriginChosen;
  EXPECT_FALSE(OfferedAt(2));
}

TEST_F(AddMessageTest, IsLeftAsItIsInAMsxSet) {
  set_.CurrentFileType = kMsxType;
  set_.LoadDefaultMessages();
  EXPECT_FALSE(OfferedAt(2));
  window_.offers_new_message = true;
  EXPECT_TRUE(OfferedAt(1));
}

TEST_F(AddMessageTest, AsksBeforeItAdds) {
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  editing_.AddMessage(dialogs_);
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].text, "text 40");
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kQuestion);
  EXPECT_EQ(dialogs_.messages[0].buttons, MessageButtons::kYesNo);
}

TEST_F(AddMessageTest, AppendsAMessage) {
  window_.offers_new_message = true;
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  editing_.AddMessage(dialogs_);
  EXPECT_EQ(set_.LastMsg, 3);
  EXPECT_EQ(view().HScroll1.max, 3);
  EXPECT_EQ(set_.Modified, kTrue);
  EXPECT_FALSE(view().Command2Visible);
}

TEST_F(AddMessageTest, OnlyHidesItsButtonForNo) {
  window_.offers_new_message = true;
  dialogs_.yes_no_answers = {MessageAnswer::kNo};
  editing_.AddMessage(dialogs_);
  EXPECT_EQ(set_.LastMsg, 2);
  EXPECT_EQ(view().HScroll1.max, 2);
  EXPECT_EQ(set_.Modified, kFalse);
  EXPECT_FALSE(view().Command2Visible);
}

TEST_F(AddMessageTest, ShowsWhateverTheSetHoldsForTheNewMessage) {
  set_.OriginText[3] = DisplayText(Codes("left  "));
  set_.DestText[3] = DisplayText(Codes("over  "));
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  editing_.AddMessage(dialogs_);
  editing_.GoTo(3);
  EXPECT_EQ(Captions(6), "left  ");
  EXPECT_EQ(EditBox(), "over");
}

}  // namespace
}  // namespace vendlingua
