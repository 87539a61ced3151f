#include "core/operations/language_files.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "support/named_pipe.h"
#include "support/skip_on_windows.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LanguageFilesTest : public testing::Test {
 protected:
  std::vector<std::string> Names() const { return LanguageNames(folder_.path()); }
  std::string File(const std::string& name) const {
    return LanguageFile(folder_.path(), name).filename().string();
  }

  test::TemporaryFolder folder_;
};

TEST_F(LanguageFilesTest, AreListedInAlphabeticalOrderWithoutRegardToCase) {
  SKIP_ON_WINDOWS("names that differ by case alone");
  for (const char* name : {"b.lng", "C.lng", "a.lng", "A.lng", "d.Lng", "\u00E9.lng"}) {
    folder_.Write(name, "");
  }
  EXPECT_THAT(Names(), ElementsAre("A", "a", "b", "C", "d", "\u00E9"));
}

TEST_F(LanguageFilesTest, AreFilesAndNothingElse) {
  SKIP_ON_WINDOWS("links for everybody");
  folder_.Write("x.lng", "");
  folder_.Write("x.lng.bak", "");
  folder_.Write("lng", "");
  folder_.Write(".lng", "");
  std::filesystem::create_directory(folder_ / "folder.lng");
  std::filesystem::create_symlink("missing.lng", folder_ / "link.lng");
  std::filesystem::create_symlink("x.lng", folder_ / "y.lng");
  ASSERT_TRUE(test::MakePipe(folder_ / "pipe.lng"));
  EXPECT_THAT(Names(), ElementsAre("x", "y"));
}

TEST_F(LanguageFilesTest, AreListedOnceForEachName) {
  SKIP_ON_WINDOWS("names that differ by case alone");
  folder_.Write("x.lng", "");
  folder_.Write("x.LNG", "");
  folder_.Write("y\xFF.lng", "");
  folder_.Write("y\xFE.lng", "");
  EXPECT_THAT(Names(), ElementsAre("x", "y\uFFFD"));
}

TEST_F(LanguageFilesTest, AreNoneInAFolderThatIsMissing) {
  EXPECT_THAT(LanguageNames(folder_ / "missing"), IsEmpty());
  EXPECT_THAT(LanguageNames(""), IsEmpty());
}

TEST_F(LanguageFilesTest, AreFoundByTheirExactNameFirst) {
  for (const char* name : {"x.lng", "x.LNG", "X.lng"}) {
    folder_.Write(name, "");
  }
  EXPECT_EQ(File("x.lng"), "x.lng");
  EXPECT_EQ(File("X.lng"), "X.lng");
}

TEST_F(LanguageFilesTest, AreFoundByTheirNameBeforeAnyInAnotherCase) {
  SKIP_ON_WINDOWS("names that differ by case alone");
  folder_.Write("X.lng", "");
  folder_.Write("x.LNG", "");
  EXPECT_EQ(File("x.lng"), "x.LNG");
}

TEST_F(LanguageFilesTest, AreFoundInAnotherCase) {
  SKIP_ON_WINDOWS("names that differ by case alone");
  folder_.Write("ITALIANO.LNG", "");
  EXPECT_EQ(File("italiano.lng"), "ITALIANO.LNG");
}

TEST_F(LanguageFilesTest, AreFoundByTheNameThatIsListed) {
  SKIP_ON_WINDOWS("names that are no text");
  folder_.Write(
      "fran\xE7"
      "ais.lng",
      "");
  EXPECT_EQ(File("fran\uFFFDais.lng"),
            "fran\xE7"
            "ais.lng");
}

TEST_F(LanguageFilesTest, LeadToNoFileWhereThereIsNone) {
  folder_.Write("x.lng", "");
  std::filesystem::create_directory(folder_ / "y.lng");
  EXPECT_EQ(LanguageFile(folder_.path(), "y.lng"), folder_ / "y.lng");
  EXPECT_EQ(LanguageFile(folder_.path(), "z.lng"), folder_ / "z.lng");
}

}  // namespace
}  // namespace vendlingua
