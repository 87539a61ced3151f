#include "core/platform/temporary_name.h"

#include <gmock/gmock.h>

#include <chrono>
#include <filesystem>
#include <string>

#include "core/platform/file_handle.h"
#include "support/skip_on_windows.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

class StaleFilesTest : public ::testing::Test {
 protected:
  // A file that was written an hour ago.
  fs::path Old(const std::string& name) {
    const fs::path path = folder_.Write(name, "piece");
    fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(1));
    return path;
  }

  test::TemporaryFolder folder_;
};

TEST(TemporaryName, IsHiddenAndNeverTheSame) {
  const std::string name = TemporaryName().string();
  EXPECT_THAT(name, testing::MatchesRegex("\\.vendlingua-\\w+\\.tmp"));
  EXPECT_NE(name, TemporaryName());
}

TEST_F(StaleFilesTest, AreRemovedWhenNobodyUsesThem) {
  Old(".vendlingua-17.tmp");
  Old(TemporaryName().string());
  RemoveStaleFiles(folder_.path());
  EXPECT_EQ(folder_.Names(), "");
}

TEST_F(StaleFilesTest, AreThoseOfATemporaryNameAlone) {
  for (const char* name : {"A.MES", ".vendlingua-.tmp", ".vendlingua-1x.tmp", ".vendlingua-1.tmp2",
                           "vendlingua-1.tmp", ".vendlingua-1"}) {
    Old(name);
  }
  const std::string names = folder_.Names();
  RemoveStaleFiles(folder_.path());
  EXPECT_EQ(folder_.Names(), names);
}

TEST_F(StaleFilesTest, AreOlderThanAMinute) {
  folder_.Write(".vendlingua-1.tmp", "just begun");
  RemoveStaleFiles(folder_.path());
  EXPECT_EQ(folder_.Names(), ".vendlingua-1.tmp");
}

TEST_F(StaleFilesTest, AreNotLocked) {
  const fs::path path = Old(".vendlingua-1.tmp");
  FileHandle user;
  ASSERT_EQ(user.Open(path, FileHandle::Access::kRead), std::error_code());
  ASSERT_EQ(user.TryLock(FileHandle::LockKind::kExclusive), std::error_code());
  RemoveStaleFiles(folder_.path());
  EXPECT_EQ(folder_.Names(), ".vendlingua-1.tmp");
  user.Close();
  RemoveStaleFiles(folder_.path());
  EXPECT_EQ(folder_.Names(), "");
}

TEST_F(StaleFilesTest, AreFilesAndNoLinks) {
  SKIP_ON_WINDOWS("links for everybody");
  fs::create_directory(folder_ / ".vendlingua-1.tmp");
  fs::create_symlink(Old("A.MES"), folder_ / ".vendlingua-2.tmp");
  RemoveStaleFiles(folder_.path());
  EXPECT_EQ(folder_.Names(), ".vendlingua-1.tmp .vendlingua-2.tmp A.MES");
}

TEST_F(StaleFilesTest, AreLookedForInNoFolderThatIsNotThere) {
  RemoveStaleFiles(folder_ / "none");
  EXPECT_EQ(folder_.Names(), "");
}

}  // namespace
}  // namespace vendlingua
