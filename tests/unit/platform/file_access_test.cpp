#include "core/platform/file_access.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/ordinary_user.h"
#include "support/skip_on_windows.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

// Whether an ordinary user may replace a file when it and its folder have these modes.
bool MayReplaceWith(fs::perms folder_mode, fs::perms file_mode) {
  const test::TemporaryFolder folder;
  const fs::path file = folder.Write("file", "content");
  fs::permissions(file, file_mode);
  fs::permissions(folder.path(), folder_mode);
  bool may_replace = false;
  {
    const test::OrdinaryUser user;
    EXPECT_TRUE(user.holds()) << "root that may not become another user";
    may_replace = MayReplace(file);
  }
  fs::permissions(folder.path(), fs::perms::owner_all);
  return may_replace;
}

TEST(MayReplace, NeedsAFileAndAFolderThatCanBeWritten) {
  SKIP_ON_WINDOWS("modes of files");
  EXPECT_TRUE(MayReplaceWith(fs::perms(0777), fs::perms(0666)));
  EXPECT_FALSE(MayReplaceWith(fs::perms(0777), fs::perms(0444)));
  EXPECT_FALSE(MayReplaceWith(fs::perms(0555), fs::perms(0666)));
  EXPECT_FALSE(MayReplaceWith(fs::perms(0666), fs::perms(0666))) << "a folder without entry";
}

TEST(MayReplace, ChangesNothing) {
  const test::TemporaryFolder folder;
  const fs::path file = folder.Write("file", "content");
  const auto time = fs::last_write_time(file);
  EXPECT_TRUE(MayReplace(file));
  EXPECT_EQ(folder.Names(), "file");
  EXPECT_EQ(test::Slurp(file), "content");
  EXPECT_EQ(fs::last_write_time(file), time);
}

TEST(MayReplace, IsFalseForAFileThatIsMissing) {
  const test::TemporaryFolder folder;
  EXPECT_FALSE(MayReplace(folder / "missing"));
  EXPECT_FALSE(MayReplace(""));
}

}  // namespace
}  // namespace vendlingua
