#include <filesystem>

#include "unit/operations/message_file_writer_test.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::MesFile;
using test::Slurp;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using SavingNothing = test::MessageFileWriterTest;

class NonSave : public test::EditedMesFile {
 protected:
  NonSave() {
    Edit(MesFile());
    Type("XY");
  }

  bool Answer(MessageAnswer answer) {
    dialogs_.yes_no_answers = {answer};
    return engine_.writer.NonSave();
  }
};

TEST_F(NonSave, AsksNothingWithoutChanges) {
  set_.Modified = kFalse;
  EXPECT_TRUE(engine_.writer.NonSave());
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(NonSave, AsksWhetherToSave) {
  Answer(MessageAnswer::kNo);
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kQuestion);
  EXPECT_EQ(dialogs_.messages[0].buttons, MessageButtons::kYesNo);
  EXPECT_EQ(dialogs_.messages[0].text, "text 43");
  EXPECT_EQ(dialogs_.messages[0].title, "text 42");
}

TEST_F(NonSave, SavesOnYes) {
  EXPECT_TRUE(Answer(MessageAnswer::kYes));
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), Patched(80, "XY  "));
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(NonSave, DropsTheMarkOnNo) {
  EXPECT_TRUE(Answer(MessageAnswer::kNo));
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), bytes_);
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(NonSave, TellsThatASaveFailed) {
  fs::remove(folder_ / "FILE.MES");
  EXPECT_FALSE(Answer(MessageAnswer::kYes));
}

TEST_F(SavingNothing, WritesNothingWithoutAnOpenFile) {
  dialogs_.input_answers = {"english"};
  EXPECT_EQ(engine_.writer.Save().result, SaveOutcome::kNothingWritten);
  EXPECT_THAT(dialogs_.save_requests, IsEmpty());
}

}  // namespace
}  // namespace vendlingua
