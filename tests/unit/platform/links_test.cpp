#include "core/platform/links.h"

#include <gtest/gtest.h>

#include "support/skip_on_windows.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

TEST(FollowLinks, LeadsToWhatIsNotThereYet) {
  SKIP_ON_WINDOWS("links for everybody");
  const test::TemporaryFolder folder;
  fs::create_directory(folder / "sub");
  fs::create_symlink("sub/b", folder / "a");
  fs::create_symlink("c", folder / "sub/b");
  EXPECT_EQ(FollowLinks(folder / "a"), folder / "sub/c");
  EXPECT_EQ(FollowLinks(folder / "none"), folder / "none");
}

TEST(FollowLinks, EndsInACircle) {
  SKIP_ON_WINDOWS("links for everybody");
  const test::TemporaryFolder folder;
  fs::create_symlink("b", folder / "a");
  fs::create_symlink("a", folder / "b");
  EXPECT_TRUE(fs::is_symlink(FollowLinks(folder / "a")));
}

}  // namespace
}  // namespace vendlingua
