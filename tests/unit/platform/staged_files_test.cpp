#include "core/platform/staged_files.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "core/platform/errors.h"
#include "support/full_disk.h"
#include "support/skip_on_windows.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::Slurp;

class StagedFilesTest : public ::testing::Test {
 protected:
  test::TemporaryFolder folder_;
  StagedFiles files_;
};

TEST_F(StagedFilesTest, TakeTheirNamesTogether) {
  folder_.Write("B", "old");
  fs::create_directory(folder_ / "sub");
  files_.Add(folder_ / "A", {"first, ", "second"});
  files_.Add(folder_ / "B", {"new"});
  files_.Add(folder_ / "sub" / "C", {});
  EXPECT_FALSE(fs::exists(folder_ / "A"));
  EXPECT_EQ(Slurp(folder_ / "B"), "old");
  files_.Commit();
  EXPECT_EQ(Slurp(folder_ / "A"), "first, second");
  EXPECT_EQ(Slurp(folder_ / "B"), "new");
  EXPECT_EQ(Slurp(folder_ / "sub" / "C"), "");
  EXPECT_EQ(folder_.Names(), "A B sub");
}

TEST_F(StagedFilesTest, GoAwayTogether) {
  folder_.Write("B", "old");
  {
    StagedFiles files;
    files.Add(folder_ / "A", {"new"});
    files.Remove(folder_ / "B");
    EXPECT_THROW(files.Add(folder_ / "none" / "C", {"new"}), FolderNotReadyError);
  }
  EXPECT_EQ(folder_.Names(), "B");
}

TEST_F(StagedFilesTest, KeepTheOldSetWhenOneOfThemFindsNoRoom) {
  SKIP_ON_WINDOWS("limit for the size of files");
  folder_.Write("A", "old A");
  folder_.Write("B", "old B");
  {
    StagedFiles files;
    files.Add(folder_ / "A", {"new"});
    const test::FullDisk disk(5);
    EXPECT_THROW(files.Add(folder_ / "B", {"longer than five bytes"}), FileError);
  }
  EXPECT_EQ(Slurp(folder_ / "A"), "old A");
  EXPECT_EQ(Slurp(folder_ / "B"), "old B");
  EXPECT_EQ(folder_.Names(), "A B");
}

TEST_F(StagedFilesTest, RemoveWhatShallNotBeThere) {
  folder_.Write("A", "old");
  files_.Remove(folder_ / "A");
  files_.Remove(folder_ / "none");
  EXPECT_EQ(folder_.Names(), "A");
  files_.Commit();
  EXPECT_EQ(folder_.Names(), "");
}

// What is behind a link is what counts; the link is somebody's own.
TEST_F(StagedFilesTest, RemoveNoLink) {
  SKIP_ON_WINDOWS("links for everybody");
  folder_.Write("real", "old");
  fs::create_symlink("real", folder_ / "link");
  fs::create_symlink("nothing", folder_ / "dangling");
  files_.Remove(folder_ / "link");
  files_.Remove(folder_ / "dangling");
  files_.Commit();
  EXPECT_EQ(folder_.Names(), "dangling link");
}

TEST_F(StagedFilesTest, RemoveNothingThatIsNoFile) {
  fs::create_directory(folder_ / "sub");
  EXPECT_THROW(files_.Remove(folder_ / "sub"), FileError);
  EXPECT_THROW(files_.Remove(folder_ / "none" / "A"), FileError);
}

}  // namespace
}  // namespace vendlingua
