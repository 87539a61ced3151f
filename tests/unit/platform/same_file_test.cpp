#include "core/platform/same_file.h"

#include <gtest/gtest.h>

#include "support/skip_on_windows.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

class SameFileTest : public testing::Test {
 protected:
  SameFileTest() { fs::create_directory(folder_ / "sub"); }

  void Link(std::string_view link, const fs::path& to) { fs::create_symlink(to, folder_ / link); }

  bool Same(std::string_view a, std::string_view b) {
    const bool same = LeadToSameFile(folder_ / a, folder_ / b);
    EXPECT_EQ(LeadToSameFile(folder_ / b, folder_ / a), same);
    return same;
  }

  test::TemporaryFolder folder_;
};

TEST_F(SameFileTest, KnowsAFileByEverySpelling) {
  for (const bool there : {false, true}) {
    if (there) {
      folder_.Write("a", "");
    }
    EXPECT_TRUE(Same("a", "a"));
    EXPECT_TRUE(Same("a", "./a"));
    EXPECT_TRUE(Same("a", "sub/../a"));
    EXPECT_TRUE(LeadToSameFile(folder_ / "a", fs::relative(folder_ / "a")));
    EXPECT_FALSE(Same("a", "b"));
    EXPECT_FALSE(Same("a", "sub/a"));
  }
}

TEST_F(SameFileTest, FollowsLinksToAFileThatIsThereOrNot) {
  SKIP_ON_WINDOWS("links for everybody");
  Link("link", "a");
  Link("sub/link", "../link");
  Link("far", (folder_ / "sub/link").c_str());
  Link("here", ".");
  for (const bool there : {false, true}) {
    if (there) {
      folder_.Write("a", "");
    }
    EXPECT_TRUE(Same("a", "link"));
    EXPECT_TRUE(Same("a", "sub/link"));
    EXPECT_TRUE(Same("sub/link", "far"));
    EXPECT_TRUE(Same("a", "here/a"));
    EXPECT_FALSE(Same("b", "far"));
  }
}

TEST_F(SameFileTest, KnowsTwoNamesOfOneFile) {
  fs::create_hard_link(folder_.Write("a", ""), folder_ / "b");
  EXPECT_TRUE(Same("a", "b"));
}

TEST_F(SameFileTest, TellsFilesOfTheSameContentApart) {
  folder_.Write("a", "same");
  folder_.Write("b", "same");
  EXPECT_FALSE(Same("a", "b"));
}

TEST_F(SameFileTest, EndsForLinksThatLeadInACircle) {
  SKIP_ON_WINDOWS("links for everybody");
  Link("one", "two");
  Link("two", "one");
  Link("self", "self");
  EXPECT_FALSE(Same("one", "self"));
  EXPECT_FALSE(Same("a", "self"));
  EXPECT_TRUE(Same("self", "self"));
}

TEST_F(SameFileTest, KnowsAFileInAFolderThatIsNotThere) {
  EXPECT_TRUE(Same("no/a", "no/./a"));
  EXPECT_FALSE(Same("no/a", "a"));
}

}  // namespace
}  // namespace vendlingua
