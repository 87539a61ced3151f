#include "core/platform/file_handle.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/named_pipe.h"
#include "support/skip_on_windows.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::Slurp;

using Access = FileHandle::Access;
using LockKind = FileHandle::LockKind;

class FileHandleTest : public ::testing::Test {
 protected:
  test::TemporaryFolder folder_;
  FileHandle file_;
};

TEST_F(FileHandleTest, WritesPiecesOneBehindTheOther) {
  ASSERT_EQ(file_.CreateNew(folder_ / "new.bin"), std::error_code());
  EXPECT_EQ(file_.Write("ab\r\n"), std::error_code());
  EXPECT_EQ(file_.Write(""), std::error_code());
  EXPECT_EQ(file_.Write(std::string("\0\xFF", 2)), std::error_code());
  EXPECT_EQ(file_.Flush(), std::error_code());
  EXPECT_EQ(file_.Close(), std::error_code());
  EXPECT_FALSE(file_.IsOpen());
  EXPECT_EQ(Slurp(folder_ / "new.bin"), std::string("ab\r\n\0\xFF", 6));
}

TEST_F(FileHandleTest, CreatesNoFileWhereOneIs) {
  const fs::path path = folder_.Write("old.bin", "old");
  EXPECT_EQ(file_.CreateNew(path), std::errc::file_exists);
  EXPECT_FALSE(file_.IsOpen());
  EXPECT_EQ(Slurp(path), "old");
}

TEST_F(FileHandleTest, CreatesNoFileThroughALink) {
  SKIP_ON_WINDOWS("links for everybody");
  fs::create_symlink("elsewhere.bin", folder_ / "link.bin");
  EXPECT_EQ(file_.CreateNew(folder_ / "link.bin"), std::errc::file_exists);
  EXPECT_EQ(folder_.Names(), "link.bin");
}

TEST_F(FileHandleTest, OpensAFileAsItIs) {
  const fs::path path = folder_.Write("old.bin", "old content");
  EXPECT_EQ(file_.Open(path, Access::kChange), std::error_code());
  EXPECT_EQ(file_.WriteAt(0, "OLD"), std::error_code());
  EXPECT_EQ(file_.Close(), std::error_code());
  EXPECT_EQ(Slurp(path), "OLD content");
}

TEST_F(FileHandleTest, WritesNothingIntoAFileThatItReads) {
  const fs::path path = folder_.Write("old.bin", "old content");
  ASSERT_EQ(file_.Open(path, Access::kRead), std::error_code());
  EXPECT_NE(file_.WriteAt(0, "OLD"), std::error_code());
  EXPECT_EQ(Slurp(path), "old content");
}

TEST_F(FileHandleTest, ReadsFromAnyPositionToTheEnd) {
  ASSERT_EQ(file_.Open(folder_.Write("a.bin", "0123456789"), Access::kRead), std::error_code());
  std::string bytes(4, ' ');
  EXPECT_EQ(file_.ReadAt(3, bytes), std::error_code());
  EXPECT_EQ(bytes, "3456");
  EXPECT_EQ(file_.ReadAt(8, bytes), std::error_code());
  EXPECT_EQ(bytes, "89");
  EXPECT_EQ(file_.ReadAt(10, bytes), std::error_code());
  EXPECT_EQ(bytes, "");
}

TEST_F(FileHandleTest, FillsAGapBehindTheOldEndWithZeros) {
  const fs::path path = folder_.Write("a.bin", "01");
  ASSERT_EQ(file_.Open(path, Access::kChange), std::error_code());
  EXPECT_EQ(file_.WriteAt(5, "X"), std::error_code());
  EXPECT_EQ(Slurp(path), std::string("01\0\0\0X", 6));
}

TEST_F(FileHandleTest, RefusesAPositionThatNoFileHas) {
  ASSERT_EQ(file_.Open(folder_.Write("a.bin", "01"), Access::kChange), std::error_code());
  EXPECT_NE(file_.WriteAt(static_cast<std::uint64_t>(-1), "X"), std::error_code());
}

TEST_F(FileHandleTest, CutsAFile) {
  const fs::path path = folder_.Write("a.bin", "0123");
  ASSERT_EQ(file_.Open(path, Access::kChange), std::error_code());
  EXPECT_EQ(file_.Resize(3), std::error_code());
  EXPECT_EQ(Slurp(path), "012");
  std::uint64_t size = 0;
  EXPECT_EQ(file_.GetSize(size), std::error_code());
  EXPECT_EQ(size, 3U);
}

TEST_F(FileHandleTest, KnowsAFileFromOthers) {
  ASSERT_EQ(file_.Open(folder_.Write("a.bin", ""), Access::kRead), std::error_code());
  EXPECT_TRUE(file_.IsRegularFile());
  EXPECT_TRUE(file_.IsFileAt(folder_ / "a.bin"));
  EXPECT_FALSE(file_.IsFileAt(folder_.Write("b.bin", "")));
  EXPECT_FALSE(file_.IsFileAt(folder_ / "none.bin"));
}

TEST_F(FileHandleTest, KnowsAFolder) {
  SKIP_ON_WINDOWS("folders that open as files");
  FileHandle folder;
  ASSERT_EQ(folder.Open(folder_.path(), Access::kRead), std::error_code());
  EXPECT_FALSE(folder.IsRegularFile());
}

TEST_F(FileHandleTest, WaitsForNobodyAtAPipe) {
  SKIP_ON_WINDOWS("pipes among files");
  ASSERT_TRUE(test::MakePipe(folder_ / "pipe"));
  EXPECT_EQ(file_.Open(folder_ / "pipe", Access::kRead), std::error_code());
  EXPECT_FALSE(file_.IsRegularFile());
}

TEST_F(FileHandleTest, KeepsOthersFromAFileThatItChanges) {
  const fs::path path = folder_.Write("a.bin", "");
  FileHandle reader;
  FileHandle other;
  ASSERT_EQ(file_.Open(path, Access::kChange), std::error_code());
  ASSERT_EQ(reader.Open(path, Access::kRead), std::error_code());
  ASSERT_EQ(other.Open(path, Access::kRead), std::error_code());
  EXPECT_EQ(file_.TryLock(LockKind::kExclusive), std::error_code());
  EXPECT_EQ(reader.TryLock(LockKind::kShared), std::errc::operation_would_block);
  file_.Close();
  EXPECT_EQ(reader.TryLock(LockKind::kShared), std::error_code());
  EXPECT_EQ(other.TryLock(LockKind::kShared), std::error_code());
  ASSERT_EQ(file_.Open(path, Access::kChange), std::error_code());
  EXPECT_EQ(file_.TryLock(LockKind::kExclusive), std::errc::operation_would_block);
}

TEST_F(FileHandleTest, TellsThatAFileIsNotThere) {
  EXPECT_EQ(file_.Open(folder_ / "none.bin", Access::kChange),
            std::errc::no_such_file_or_directory);
  EXPECT_EQ(file_.CreateNew(folder_ / "none/new.bin"), std::errc::no_such_file_or_directory);
}

TEST_F(FileHandleTest, TellsThatTheDiskIsFull) {
  if (!fs::exists("/dev/full")) {
    GTEST_SKIP() << "needs the device file that is always full";
  }
  ASSERT_EQ(file_.Open("/dev/full", Access::kChange), std::error_code());
  EXPECT_EQ(file_.Write("x"), std::errc::no_space_on_device);
}

// A device has nothing that could be waited for.
TEST_F(FileHandleTest, FlushesWhereNothingCanBeFlushed) {
  if (!fs::exists("/dev/null")) {
    GTEST_SKIP() << "needs the device file";
  }
  ASSERT_EQ(file_.Open("/dev/null", Access::kChange), std::error_code());
  file_.BeginFlush();
  EXPECT_EQ(file_.Flush(), std::error_code());
}

TEST_F(FileHandleTest, ClosesItself) {
  {
    FileHandle file;
    ASSERT_EQ(file.CreateNew(folder_ / "new.bin"), std::error_code());
    ASSERT_EQ(file.Write("x"), std::error_code());
  }
  EXPECT_EQ(Slurp(folder_ / "new.bin"), "x");
}

TEST(Rename, ReplacesWhatIsThere) {
  const test::TemporaryFolder folder;
  const fs::path from = folder.Write("new.bin", "new");
  EXPECT_EQ(Rename(from, folder.Write("file.bin", "old")), std::error_code());
  EXPECT_EQ(Slurp(folder / "file.bin"), "new");
  EXPECT_EQ(Rename(folder / "file.bin", folder / "other.bin"), std::error_code());
  EXPECT_EQ(folder.Names(), "other.bin");
}

TEST(Rename, LeavesBothWhereItCannot) {
  const test::TemporaryFolder folder;
  const fs::path from = folder.Write("new.bin", "new");
  EXPECT_TRUE(Rename(from, folder / "none/file.bin"));
  EXPECT_TRUE(Rename(folder / "none.bin", from));
  EXPECT_EQ(Slurp(from), "new");
}

TEST(FlushFolder, MindsNoFolderThatIsNotThere) {
  const test::TemporaryFolder folder;
  FlushFolder(folder.path());
  FlushFolder(folder / "none");
  EXPECT_EQ(folder.Names(), "");
}

}  // namespace
}  // namespace vendlingua
