#include "core/operations/recovery.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "core/platform/change_record.h"
#include "core/platform/errors.h"
#include "support/engine_test.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::MesFile;
using test::Slurp;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

// A file that is changed from `before_` to `after_`.
class RecoveryTest : public test::EngineTest {
 protected:
  void Interrupt(const std::string& content) {
    folder_.Write("FILE.MES", content);
    folder_.Write("~FILE.MES.undo", ComposeRecord(RecordOf(before_, after_)));
  }

  // The first text is new, the other one is not.
  std::string Half() const { return std::string(before_).replace(80, 4, "new0"); }

  const std::string before_ = MesFile().Bytes();
  const std::string after_ =
      std::string(before_).replace(80, 4, "new0").replace(88, 4, "new2") + "more";
  const fs::path path_ = folder_ / "FILE.MES";
};

TEST_F(RecoveryTest, IsOfferedWhenTheFileIsOpened) {
  Interrupt(Half());
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  EXPECT_EQ(Open(path_), OpenOutcome::kOpened);
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kQuestion);
  EXPECT_EQ(dialogs_.messages[0].buttons, MessageButtons::kYesNo);
  EXPECT_THAT(dialogs_.messages[0].text, HasSubstr("FILE.MES"));
  EXPECT_EQ(Slurp(path_), before_);
  EXPECT_EQ(set_.file_content, before_);
  EXPECT_EQ(folder_.Names(), "FILE.MES");
}

TEST_F(RecoveryTest, IsNotOfferedAgainWhenItIsDeclined) {
  Interrupt(Half());
  dialogs_.yes_no_answers = {MessageAnswer::kNo};
  EXPECT_EQ(Open(path_), OpenOutcome::kOpened);
  EXPECT_EQ(set_.file_content, Half());
  EXPECT_EQ(folder_.Names(), "FILE.MES");
}

TEST_F(RecoveryTest, IsNotOfferedForAFileThatIsWhole) {
  for (const std::string& content : {before_, after_}) {
    Interrupt(content);
    EXPECT_EQ(Open(path_), OpenOutcome::kOpened);
    EXPECT_EQ(Slurp(path_), content);
    EXPECT_EQ(folder_.Names(), "FILE.MES");
  }
  folder_.Write("~FILE.MES.undo", "Vendlingua undo file 1\nand no m");
  Open(path_);
  EXPECT_EQ(folder_.Names(), "FILE.MES");
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(RecoveryTest, DoesNotUseAnUndoFileThatDoesNotFit) {
  const std::string changed = Half().replace(30, 1, "?");
  Interrupt(changed);
  EXPECT_EQ(Open(path_), OpenOutcome::kOpened);
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kExclamation);
  EXPECT_THAT(dialogs_.messages[0].text, HasSubstr("~FILE.MES.undo: "));
  EXPECT_EQ(Slurp(path_), changed);
  EXPECT_EQ(folder_.Names(), "FILE.MES ~FILE.MES.undo");
  EXPECT_THROW(Recover(path_), FileError);
  EXPECT_EQ(Slurp(path_), changed);
}

TEST_F(RecoveryTest, MindsNoOtherFileOfThatName) {
  folder_.Write("FILE.MES", before_);
  folder_.Write("~FILE.MES.undo", "a note");
  EXPECT_EQ(Open(path_), OpenOutcome::kOpened);
  EXPECT_THAT(dialogs_.messages, IsEmpty());
  EXPECT_THROW(Recover(path_), FileError);
  EXPECT_EQ(folder_.Names(), "FILE.MES ~FILE.MES.undo");
}

TEST_F(RecoveryTest, PutsAFileBack) {
  EXPECT_THROW(Recover(path_), FileError) << "there is none";
  folder_.Write("FILE.MES", before_);
  EXPECT_FALSE(Recover(path_));
  Interrupt(Half());
  EXPECT_TRUE(Recover(path_));
  EXPECT_EQ(Slurp(path_), before_);
  EXPECT_FALSE(Recover(path_));
  EXPECT_EQ(folder_.Names(), "FILE.MES");
}

TEST_F(RecoveryTest, ComesBeforeALanguageIsRead) {
  folder_.Write("FILE.MES", before_);
  Open(path_);
  Interrupt(Half());
  EXPECT_THROW(engine_.languages.ChooseOrigin(0), FileError);
}

}  // namespace
}  // namespace vendlingua
