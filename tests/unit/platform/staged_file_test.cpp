#include "core/platform/staged_file.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <functional>
#include <string>

#include "core/platform/errors.h"
#include "core/platform/files.h"
#include "support/full_disk.h"
#include "support/skip_on_windows.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::Slurp;
using testing::HasSubstr;
using testing::MatchesRegex;

class StagedFileTest : public ::testing::Test {
 protected:
  std::string FailureOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const FileError& error) {
      return error.what();
    }
    return "no FileError";
  }

  test::TemporaryFolder folder_;
  const fs::path target_ = folder_ / "NEW.MES";
};

TEST_F(StagedFileTest, TakesItsNameWhenItIsComplete) {
  StagedFile staged(target_);
  staged.Write("first, ");
  staged.Write("second");
  EXPECT_FALSE(fs::exists(target_));
  staged.Commit();
  EXPECT_EQ(folder_.Names(), "NEW.MES");
  EXPECT_EQ(Slurp(target_), "first, second");
}

TEST_F(StagedFileTest, ReplacesAnOlderFileWhenItIsComplete) {
  folder_.Write("NEW.MES", "a long old content");
  StagedFile staged(target_);
  staged.Write("new");
  EXPECT_EQ(Slurp(target_), "a long old content");
  staged.Commit();
  EXPECT_EQ(Slurp(target_), "new");
}

TEST_F(StagedFileTest, GoesAwayWhenItIsNotCommitted) {
  {
    StagedFile staged(target_);
    staged.Write("half");
  }
  EXPECT_EQ(folder_.Names(), "");
}

// Nobody can put a file or a link there between the choice of the name and the first byte.
TEST_F(StagedFileTest, LiesBesideItsTargetFromTheStart) {
  const StagedFile staged(target_);
  EXPECT_THAT(folder_.Names(), MatchesRegex("\\.vendlingua-\\w+\\.tmp"));
}

TEST_F(StagedFileTest, HasATemporaryNameOfItsOwn) {
  const StagedFile staged(target_);
  const std::string name = folder_.Names();
  const StagedFile other(target_);
  EXPECT_THAT(folder_.Names(), MatchesRegex("\\.vendlingua-\\w+\\.tmp \\.vendlingua-\\w+\\.tmp"));
  EXPECT_THAT(folder_.Names(), HasSubstr(name));
}

TEST_F(StagedFileTest, IsCreatedWithTheModeOfAnyNewFile) {
  SKIP_ON_WINDOWS("modes of files");
  const auto mask_before = umask(027);
  StagedFile(target_).Commit();
  umask(mask_before);
  EXPECT_EQ(fs::status(target_).permissions(), static_cast<fs::perms>(0640));
}

TEST_F(StagedFileTest, TakesTheModeOfTheFileThatItReplaces) {
  SKIP_ON_WINDOWS("modes of files");
  folder_.Write("NEW.MES", "old");
  fs::permissions(target_, fs::perms::owner_read | fs::perms::owner_write);
  StagedFile(target_).Commit();
  EXPECT_EQ(fs::status(target_).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(StagedFileTest, MayBeWrittenBySomebodyElse) {
  StagedFile staged(target_);
  const fs::path& place = staged.HandOver();
  EXPECT_EQ(place.parent_path(), folder_.path());
  FileHandle file;
  ASSERT_EQ(file.Open(place, FileHandle::Access::kChange), std::error_code());
  ASSERT_EQ(file.WriteAt(0, "by path"), std::error_code());
  staged.Commit();
  EXPECT_EQ(folder_.Names(), "NEW.MES");
  EXPECT_EQ(Slurp(target_), "by path");
}

TEST_F(StagedFileTest, MayBeReplacedWholeBySomebodyElse) {
  StagedFile staged(target_);
  WriteFile(staged.HandOver(), "by path");
  staged.Commit();
  EXPECT_EQ(folder_.Names(), "NEW.MES");
  EXPECT_EQ(Slurp(target_), "by path");
}

TEST_F(StagedFileTest, GoesAwayWhenSomebodyElseFails) {
  { WriteFile(StagedFile(target_).HandOver(), "half"); }
  EXPECT_EQ(folder_.Names(), "");
}

TEST_F(StagedFileTest, ReplacesWhatALinkLeadsTo) {
  SKIP_ON_WINDOWS("links for everybody");
  fs::create_directory(folder_ / "sub");
  fs::create_symlink("sub/second.MES", target_);
  fs::create_symlink("REAL.MES", folder_ / "sub/second.MES");
  StagedFile staged(target_);
  staged.Write("new");
  staged.Commit();
  EXPECT_TRUE(fs::is_symlink(target_));
  EXPECT_TRUE(fs::is_symlink(folder_ / "sub/second.MES"));
  EXPECT_EQ(Slurp(folder_ / "sub/REAL.MES"), "new");
}

TEST_F(StagedFileTest, NeedsTheFolderOfItsTarget) {
  EXPECT_THROW(StagedFile(folder_ / "none/NEW.MES"), FolderNotReadyError);
}

TEST_F(StagedFileTest, DoesNotReplaceAFolder) {
  fs::create_directory(target_);
  EXPECT_THAT(FailureOf([this] { StagedFile(target_).Commit(); }),
              HasSubstr(target_.string() + ": cannot be written"));
  EXPECT_EQ(folder_.Names(), "NEW.MES");
}

TEST_F(StagedFileTest, NamesItsTargetOnAFullDisk) {
  SKIP_ON_WINDOWS("limit for the size of files");
  const test::FullDisk disk(5);
  EXPECT_THAT(FailureOf([this] { StagedFile(target_).Write("longer than five bytes"); }),
              HasSubstr(target_.string() + ": cannot be written"));
  EXPECT_EQ(folder_.Names(), "");
}

TEST_F(StagedFileTest, NamesItsTargetWhenTheFileIsGone) {
  StagedFile staged(target_);
  fs::remove(staged.HandOver());
  EXPECT_THAT(FailureOf([&staged] { staged.Commit(); }), HasSubstr(target_.string() + ": "));
  EXPECT_EQ(folder_.Names(), "");
}

}  // namespace
}  // namespace vendlingua
