#include "core/platform/file_handle.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::Slurp;

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
  fs::create_symlink("elsewhere.bin", folder_ / "link.bin");
  EXPECT_EQ(file_.CreateNew(folder_ / "link.bin"), std::errc::file_exists);
  EXPECT_EQ(folder_.Names(), "link.bin");
}

TEST_F(FileHandleTest, OpensNoFileThroughALink) {
  folder_.Write("elsewhere.bin", "old");
  fs::create_symlink("elsewhere.bin", folder_ / "link.bin");
  EXPECT_NE(file_.Open(folder_ / "link.bin"), std::error_code());
  EXPECT_FALSE(file_.IsOpen());
}

TEST_F(FileHandleTest, OpensAFileAsItIs) {
  const fs::path path = folder_.Write("old.bin", "old content");
  EXPECT_EQ(file_.Open(path), std::error_code());
  EXPECT_EQ(file_.Write("OLD"), std::error_code());
  EXPECT_EQ(file_.Close(), std::error_code());
  EXPECT_EQ(Slurp(path), "OLD content");
}

TEST_F(FileHandleTest, TellsThatAFileIsNotThere) {
  EXPECT_EQ(file_.Open(folder_ / "none.bin"), std::errc::no_such_file_or_directory);
  EXPECT_EQ(file_.CreateNew(folder_ / "none/new.bin"), std::errc::no_such_file_or_directory);
}

TEST_F(FileHandleTest, TellsThatTheDiskIsFull) {
  if (!fs::exists("/dev/full")) {
    GTEST_SKIP() << "needs the device file that is always full";
  }
  ASSERT_EQ(file_.Open("/dev/full"), std::error_code());
  EXPECT_EQ(file_.Write("x"), std::errc::no_space_on_device);
}

// A device has nothing that could be waited for.
TEST_F(FileHandleTest, FlushesWhereNothingCanBeFlushed) {
  if (!fs::exists("/dev/null")) {
    GTEST_SKIP() << "needs the device file";
  }
  ASSERT_EQ(file_.Open("/dev/null"), std::error_code());
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

TEST(FlushFolder, MindsNoFolderThatIsNotThere) {
  const test::TemporaryFolder folder;
  FlushFolder(folder.path());
  FlushFolder(folder / "none");
  EXPECT_EQ(folder.Names(), "");
}

}  // namespace
}  // namespace vendlingua
