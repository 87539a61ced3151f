#include "core/desk/derived_file.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "core/platform/errors.h"
#include "support/skip_on_windows.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

TEST(DerivedFileTest, NeverTakesThePlaceOfTheOpenFile) {
  SKIP_ON_WINDOWS("links for everybody");
  const test::TemporaryFolder folder;
  MessageSet set;
  set.CurrentFileName = folder.Write("A.MES", "messages");
  std::filesystem::create_symlink("A.MES", folder / "link.csv");
  for (const char* name : {"A.MES", "./A.MES", "link.csv"}) {
    EXPECT_THROW(WriteDerivedFile(set, folder / name, "table"), FileError) << name;
  }
  EXPECT_EQ(test::Slurp(folder / "A.MES"), "messages");
}

TEST(DerivedFileTest, ReplacesAnyOtherFile) {
  const test::TemporaryFolder folder;
  MessageSet set;
  set.CurrentFileName = folder.Write("A.MES", "messages");
  folder.Write("a.csv", "an older and longer table");
  WriteDerivedFile(set, folder / "a.csv", "table");
  EXPECT_EQ(test::Slurp(folder / "a.csv"), "table");
}

}  // namespace
}  // namespace vendlingua
