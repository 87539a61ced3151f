#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/document/message_set.h"
#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;

class EditHistoryTest : public testing::Test {
 protected:
  EditHistoryTest() {
    set_.CurrentFileType = kMesType;
    set_.LastCol = 3;
    set_.LastMsg = 3;
    set_.TakeDestination(MessageTexts(set_.DestText), 1);
  }

  std::string Message(std::size_t message) const {
    return test::Text(set_.DestText[message].First(set_.Width()));
  }

  MessageSet set_;
};

TEST_F(EditHistoryTest, SeveralTextsAreTakenBackTogether) {
  const std::vector<NewText> texts = {{1, Codes("ONE")}, {3, Codes("TRE")}};
  EXPECT_TRUE(set_.SetTexts(texts));
  EXPECT_EQ(Message(1), "ONE ");
  EXPECT_EQ(Message(3), "TRE ");
  EXPECT_TRUE(set_.Undo());
  EXPECT_EQ(Message(1), "    ");
  EXPECT_EQ(Message(3), "    ");
  EXPECT_EQ(set_.Modified, kFalse);
  EXPECT_EQ(set_.current_message, 1U);
  EXPECT_FALSE(set_.Undo());
  EXPECT_TRUE(set_.Redo());
  EXPECT_EQ(Message(1), "ONE ");
  EXPECT_EQ(Message(3), "TRE ");
}

TEST_F(EditHistoryTest, TwoTextsOfOneMessageAreTakenBackInTurn) {
  const std::vector<NewText> texts = {{1, Codes("A")}, {1, Codes("B")}};
  EXPECT_TRUE(set_.SetTexts(texts));
  EXPECT_EQ(Message(1), "B   ");
  set_.Undo();
  EXPECT_EQ(Message(1), "    ");
  set_.Redo();
  EXPECT_EQ(Message(1), "B   ");
}

TEST_F(EditHistoryTest, TextsThatAreThereAlreadyAreNoStep) {
  const std::vector<NewText> texts = {{0, Codes("")}, {1, Codes("    ")}};
  EXPECT_FALSE(set_.SetTexts(texts));
  EXPECT_FALSE(set_.history.CanStepBack());
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(EditHistoryTest, TypingGoesNotOnInAStepOfSeveralTexts) {
  const std::vector<NewText> texts = {{1, Codes("A")}};
  set_.SetTexts(texts);
  set_.SetText(1, Codes("AB"), EditKind::kTyping);
  set_.Undo();
  EXPECT_EQ(Message(1), "A   ");
}

}  // namespace
}  // namespace vendlingua
