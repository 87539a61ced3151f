#include "core/platform/locked_file.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <thread>

#include "core/platform/errors.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using Access = LockedFile::Access;

class LockedFileTest : public ::testing::Test {
 protected:
  test::TemporaryFolder folder_;
  const fs::path path_ = folder_.Write("A.MES", "content");
};

TEST_F(LockedFileTest, IsReadByManyAtOnce) {
  LockedFile one(path_, Access::kRead);
  LockedFile other(path_, Access::kRead);
  EXPECT_EQ(one.Read(), "content");
  EXPECT_EQ(other.Read(), "content");
  EXPECT_TRUE(one.is_locked());
  EXPECT_TRUE(other.is_locked());
}

TEST_F(LockedFileTest, WaitsForTheProgramThatChangesIt) {
  std::string read;
  std::thread reader;
  {
    LockedFile changed(path_, Access::kChange);
    reader = std::thread([&] { read = LockedFile(path_, Access::kRead).Read(); });
    ASSERT_EQ(changed.handle().WriteAt(0, "CONTENT"), std::error_code());
  }
  reader.join();
  EXPECT_EQ(read, "CONTENT");
}

// The lock of a file that lost its place keeps nobody from the new one.
TEST_F(LockedFileTest, IsTheOneThatLiesThereWhenTheWaitIsOver) {
  std::string read;
  std::thread reader;
  {
    LockedFile replaced(path_, Access::kChange);
    reader = std::thread([&] { read = LockedFile(path_, Access::kRead).Read(); });
    WriteFile(path_, "another file");
  }
  reader.join();
  EXPECT_EQ(read, "another file");
}

TEST_F(LockedFileTest, IsNoFolderAndNoMissingFile) {
  EXPECT_THROW(LockedFile(folder_.path(), Access::kRead), FileError);
  EXPECT_THROW(LockedFile(folder_.path(), Access::kChange), FileError);
  EXPECT_THROW(LockedFile(folder_ / "none", Access::kRead), FileError);
  EXPECT_THROW(LockedFile(folder_ / "none/none", Access::kChange), FolderNotReadyError);
}

}  // namespace
}  // namespace vendlingua
