#include "core/platform/in_place_change.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "core/platform/errors.h"
#include "support/full_disk.h"
#include "support/named_pipe.h"
#include "support/ordinary_user.h"
#include "support/skip_on_windows.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using Access = LockedFile::Access;
using State = PendingChange::State;
using test::Slurp;
using testing::HasSubstr;

class InPlaceChangeTest : public ::testing::Test {
 protected:
  Protection Change(const std::string& after) {
    LockedFile file(path_, Access::kChange);
    return ChangeInPlace(file, file.Read(), after);
  }

  std::string FailureOf(const std::string& after) {
    try {
      Change(after);
    } catch (const FileError& error) {
      return error.what();
    }
    return "no FileError";
  }

  // As a kill leaves them: an undo file of the change from `before` to `after`, and a file that
  // holds `content`.
  void Interrupt(const std::string& before, const std::string& after, const std::string& content) {
    folder_.Write("~A.MES.undo", ComposeRecord(RecordOf(before, after)));
    folder_.Write("A.MES", content);
  }

  State PendingState() { return PendingChangeOf(path_, Slurp(path_)).state; }

  test::TemporaryFolder folder_;
  const fs::path path_ = folder_.Write("A.MES", "0123456789");
};

TEST_F(InPlaceChangeTest, LeavesTheNewFileAndNothingElse) {
  EXPECT_EQ(Change("0A23456789BC"), Protection::kUndoFile);
  EXPECT_EQ(Slurp(path_), "0A23456789BC");
  EXPECT_EQ(folder_.Names(), "A.MES");
}

TEST_F(InPlaceChangeTest, KeepsTheFileItselfSoThatLinksAndModesStay) {
  SKIP_ON_WINDOWS("links for everybody");
  fs::create_hard_link(path_, folder_ / "hard.MES");
  fs::create_symlink("A.MES", folder_ / "link.MES");
  fs::permissions(path_, fs::perms::owner_read | fs::perms::owner_write);
  LockedFile file(folder_ / "link.MES", Access::kChange);
  ChangeInPlace(file, file.Read(), "changed---");
  EXPECT_EQ(Slurp(folder_ / "hard.MES"), "changed---");
  EXPECT_EQ(fs::status(path_).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(folder_.Names(), "A.MES hard.MES link.MES");
}

TEST_F(InPlaceChangeTest, FailsWithNothingTouchedWhereTheUndoFileFindsNoRoom) {
  SKIP_ON_WINDOWS("limit for the size of files");
  const test::FullDisk disk(30);
  EXPECT_THAT(FailureOf("0A23456789"), HasSubstr("A.MES: cannot be written"));
  EXPECT_EQ(Slurp(path_), "0123456789");
  EXPECT_EQ(folder_.Names(), "A.MES");
}

// The undo file is smaller than the file here, so that only the change finds no room.
TEST_F(InPlaceChangeTest, PutsTheOldFileBackWhenItFailsHalfWay) {
  SKIP_ON_WINDOWS("limit for the size of files");
  const std::string before(1000, 'a');
  std::string after = before + "b";
  after.replace(5, 1, "x");
  folder_.Write("A.MES", before);
  const test::FullDisk disk(1000);
  EXPECT_THAT(FailureOf(after), HasSubstr("A.MES: cannot be written at position 1001"));
  EXPECT_EQ(Slurp(path_), before);
  EXPECT_EQ(folder_.Names(), "A.MES");
}

// Of bytes that could not be written the old ones cannot be written either.
TEST_F(InPlaceChangeTest, PutsBackWhatWasWrittenOfAFileThatCannotBeWrittenToItsEnd) {
  SKIP_ON_WINDOWS("limit for the size of files");
  const std::string before(1000, 'a');
  folder_.Write("A.MES", before);
  std::string after = before;
  after.replace(5, 1, "x").replace(780, 40, std::string(40, 'y'));
  const test::FullDisk disk(800);
  EXPECT_THAT(FailureOf(after), HasSubstr("A.MES: cannot be written at position 781"));
  EXPECT_EQ(Slurp(path_), before);
  EXPECT_EQ(folder_.Names(), "A.MES");
}

TEST_F(InPlaceChangeTest, WritesNothingWhereNothingChanges) {
  SKIP_ON_WINDOWS("limit for the size of files");
  const test::FullDisk disk(0);
  EXPECT_EQ(Change("0123456789"), Protection::kUndoFile);
}

TEST_F(InPlaceChangeTest, GoesWithoutAnUndoFileInAFolderThatTakesNone) {
  fs::permissions(path_, static_cast<fs::perms>(0666));
  fs::permissions(folder_.path(), static_cast<fs::perms>(0555));
  {
    const test::OrdinaryUser ordinary_user;
    if (ordinary_user.holds()) {
      EXPECT_EQ(Change("changed---"), Protection::kNone);
    }
  }
  fs::permissions(folder_.path(), fs::perms::owner_all);
  EXPECT_EQ(folder_.Names(), "A.MES");
}

TEST_F(InPlaceChangeTest, GoesWithoutAnUndoFileBesideTheLongestName) {
  const std::string longest(255, 'x');
  const fs::path path = folder_.Write(longest, "0123456789");
  LockedFile file(path, Access::kChange);
  EXPECT_EQ(ChangeInPlace(file, file.Read(), "changed---"), Protection::kNone);
  EXPECT_EQ(Slurp(path), "changed---");
}

TEST_F(InPlaceChangeTest, IsRefusedAfterOneThatWasInterrupted) {
  Interrupt("0123456789", "01XX456789", "01X3456789");
  EXPECT_THAT(FailureOf("0123456780"), HasSubstr("a save of it was interrupted"));
  EXPECT_EQ(Slurp(path_), "01X3456789");
  EXPECT_EQ(folder_.Names(), "A.MES ~A.MES.undo");
}

TEST_F(InPlaceChangeTest, ReplacesAnUndoFileOfWhichNothingIsNeeded) {
  for (const char* content : {"0123456789", "01XX456789", "changed since"}) {
    Interrupt("0123456789", "01XX456789", content);
    Change(std::string(content) + "!");
    EXPECT_EQ(Slurp(path_), std::string(content) + "!");
    EXPECT_EQ(folder_.Names(), "A.MES");
  }
  folder_.Write("~A.MES.undo", "Vendlingua un");
  Change("0123456789-----");
  EXPECT_EQ(folder_.Names(), "A.MES");
}

TEST_F(InPlaceChangeTest, NeverTouchesWhatLiesWhereTheUndoFileHasToBe) {
  SKIP_ON_WINDOWS("links for everybody");
  const fs::path undo = folder_.Write("~A.MES.undo", "a note of somebody");
  EXPECT_THAT(FailureOf("0A23456789"), HasSubstr("~A.MES.undo: lies where"));
  EXPECT_EQ(Slurp(undo), "a note of somebody");
  EXPECT_EQ(Slurp(path_), "0123456789");
  fs::remove(undo);
  fs::create_symlink("none", undo);
  EXPECT_THAT(FailureOf("0A23456789"), HasSubstr("lies where"));
  fs::remove(undo);
  ASSERT_TRUE(test::MakePipe(undo));
  EXPECT_THAT(FailureOf("0A23456789"), HasSubstr("lies where"));
  EXPECT_EQ(folder_.Names(), "A.MES ~A.MES.undo");
}

TEST_F(InPlaceChangeTest, KeepsTheUndoFileBesideTheFileThatALinkLeadsTo) {
  SKIP_ON_WINDOWS("links for everybody");
  Interrupt("0123456789", "01XX456789", "01X3456789");
  fs::create_directory(folder_ / "sub");
  fs::create_symlink("../A.MES", folder_ / "sub/link.MES");
  EXPECT_EQ(PendingChangeOf(folder_ / "sub/link.MES", Slurp(path_)).state, State::kInterrupted);
}

TEST_F(InPlaceChangeTest, TellsWhatAnUndoFileIsGoodFor) {
  EXPECT_EQ(PendingState(), State::kNone);
  Interrupt("0123456789", "01XX456789", "0123456789");
  EXPECT_EQ(PendingState(), State::kOver);
  folder_.Write("A.MES", "01XX456789");
  EXPECT_EQ(PendingState(), State::kOver);
  folder_.Write("A.MES", "012X456789");
  EXPECT_EQ(PendingState(), State::kInterrupted);
  folder_.Write("A.MES", "0?2X456789");
  EXPECT_EQ(PendingState(), State::kUnknown);
  folder_.Write("~A.MES.undo", "");
  EXPECT_EQ(PendingState(), State::kOver);
  folder_.Write("~A.MES.undo", "something else");
  EXPECT_EQ(PendingState(), State::kForeign);
}

TEST_F(InPlaceChangeTest, IsTakenBackFromAnyPoint) {
  for (const char* content : {"01X3456789", "012X456789", "01XX456789+", "0123456789+-"}) {
    Interrupt("0123456789", "01XX456789+-", content);
    LockedFile file(path_, Access::kChange);
    TakeBack(file, PendingChangeOf(path_, content));
    EXPECT_EQ(Slurp(path_), "0123456789");
    EXPECT_EQ(folder_.Names(), "A.MES");
  }
}

TEST_F(InPlaceChangeTest, IsForgottenWithoutAChange) {
  Interrupt("0123456789", "01XX456789", "012X456789");
  Forget(PendingChangeOf(path_, Slurp(path_)));
  EXPECT_EQ(Slurp(path_), "012X456789");
  EXPECT_EQ(folder_.Names(), "A.MES");
  folder_.Write("~A.MES.undo", "something else");
  Forget(PendingChangeOf(path_, Slurp(path_)));
  EXPECT_EQ(folder_.Names(), "A.MES ~A.MES.undo");
}

TEST_F(InPlaceChangeTest, LeavesNoFileThatIsReadHalfChanged) {
  EXPECT_EQ(ReadSharedFile(path_), "0123456789");
  Interrupt("0123456789", "01XX456789", "012X456789");
  EXPECT_THROW(ReadSharedFile(path_), FileError);
  folder_.Write("A.MES", "01XX456789");
  EXPECT_EQ(ReadSharedFile(path_), "01XX456789");
}

}  // namespace
}  // namespace vendlingua
