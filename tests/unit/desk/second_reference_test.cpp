#include "core/desk/second_reference.h"

#include <gtest/gtest.h>

#include <string>

#include "support/engine_test.h"
#include "support/message_files.h"

namespace vendlingua::test {
namespace {

// Message 1 of language k reads "k111".
class SecondReferenceTest : public EngineTest {
 protected:
  void OpenFile() {
    MesFile mes;
    mes.names = {"Default", "ITALIANO", "ENGLISH", "SUOMI"};
    Open("TEST.MES", mes.Bytes());
    engine_.languages.ChooseOrigin(1);
  }

  std::string Said(std::size_t message) {
    second_.Follow(set_);
    return second_.IsThere() ? Text(second_.Of(message)) : "none";
  }

  SecondReference second_;
};

TEST_F(SecondReferenceTest, IsNoneUntilItIsChosen) {
  OpenFile();
  EXPECT_EQ(Said(1), "none");
}

TEST_F(SecondReferenceTest, SaysWhatTheFileHolds) {
  OpenFile();
  second_.Choose("SUOMI");
  EXPECT_EQ(Said(1), "3111");
  second_.Choose("");
  EXPECT_EQ(Said(1), "none");
}

TEST_F(SecondReferenceTest, TheEntryThatIsNoLanguageIsNone) {
  OpenFile();
  second_.Choose("Default");
  EXPECT_EQ(Said(1), "none");
}

TEST_F(SecondReferenceTest, SaysWhatIsBeingEdited) {
  OpenFile();
  engine_.languages.ChooseDestination(2);
  second_.Choose("ENGLISH");
  set_.SetText(1, Codes("TEA"));
  EXPECT_EQ(Said(1), "TEA ");
}

TEST_F(SecondReferenceTest, IsNoneInAFileThatLacksIt) {
  second_.Choose("SUOMI");
  EXPECT_EQ(Said(1), "none");
  Open("OTHER.MES", MesFile().Bytes());
  EXPECT_EQ(Said(1), "none");
  OpenFile();
  EXPECT_EQ(Said(1), "3111");
}

TEST_F(SecondReferenceTest, SaysNothingInAMessageThatWasAdded) {
  MesFile mes;
  mes.names = {"Default", "ITALIANO", "ENGLISH"};
  mes.stride = 4;
  Open("TEST.MES", mes.Bytes());
  engine_.languages.ChooseOrigin(1);
  engine_.languages.ChooseDestination(1);
  second_.Choose("ENGLISH");
  const std::size_t added = set_.MessageCount();
  set_.AppendMessage();
  EXPECT_EQ(Said(added).size(), 4U);
}

}  // namespace
}  // namespace vendlingua::test
