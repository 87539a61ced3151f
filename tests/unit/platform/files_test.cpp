#include "core/platform/files.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <functional>
#include <string>

#include "core/platform/errors.h"
#include "support/full_disk.h"
#include "support/named_pipe.h"
#include "support/ordinary_user.h"
#include "support/skip_on_windows.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::Slurp;
using test::TemporaryFolder;
using ::testing::HasSubstr;

class Files : public ::testing::Test {
 protected:
  TemporaryFolder folder;
};

// Every byte value once, with a CR LF that nothing may change.
std::string AllBytes() {
  std::string bytes = "\r\n";
  for (int byte = 0; byte < 256; ++byte) {
    bytes += static_cast<char>(byte);
  }
  return bytes;
}

std::string FailureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const FileError& error) {
    return error.what();
  }
  return "no FileError";
}

TEST_F(Files, AreReadByteByByte) {
  EXPECT_EQ(ReadFile(folder.Write("all.bin", AllBytes())), AllBytes());
  EXPECT_EQ(ReadFile(folder.Write("empty.bin", "")), "");
}

TEST_F(Files, AreWrittenByteByByte) {
  WriteFile(folder / "all.bin", AllBytes());
  EXPECT_EQ(Slurp(folder / "all.bin"), AllBytes());
}

TEST_F(Files, AreReplacedWhole) {
  const fs::path file = folder.Write("old.bin", "a long old content");
  WriteFile(file, "new");
  EXPECT_EQ(Slurp(file), "new");
}

TEST_F(Files, AreReplacedWholeOrNotAtAll) {
  SKIP_ON_WINDOWS("limit for the size of files");
  folder.Write("old.bin", "old content");
  const test::FullDisk disk(5);
  EXPECT_THAT(FailureOf([this] { WriteFile(folder / "old.bin", "new content"); }),
              HasSubstr((folder / "old.bin").string()));
  EXPECT_EQ(Slurp(folder / "old.bin"), "old content");
  EXPECT_THROW(WriteFile(folder / "new.bin", "new content"), FileError);
  EXPECT_EQ(folder.Names(), "old.bin");
}

TEST_F(Files, KeepTheirModeWhenTheyAreReplaced) {
  SKIP_ON_WINDOWS("modes of files");
  const fs::path file = folder.Write("old.bin", "old");
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
  WriteFile(file, "new");
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(Files, AreReplacedWhereALinkLeads) {
  SKIP_ON_WINDOWS("links for everybody");
  folder.Write("old.bin", "old");
  fs::create_symlink("old.bin", folder / "link.bin");
  WriteFile(folder / "link.bin", "new");
  EXPECT_TRUE(fs::is_symlink(folder / "link.bin"));
  EXPECT_EQ(Slurp(folder / "old.bin"), "new");
}

TEST_F(Files, AreCreatedWhereALinkToNothingLeads) {
  SKIP_ON_WINDOWS("links for everybody");
  fs::create_symlink("new.bin", folder / "link.bin");
  WriteFile(folder / "link.bin", "new");
  EXPECT_TRUE(fs::is_symlink(folder / "link.bin"));
  EXPECT_EQ(Slurp(folder / "new.bin"), "new");
}

TEST_F(Files, ThatAreLinksInACircleAreRefused) {
  SKIP_ON_WINDOWS("links for everybody");
  fs::create_symlink("b.bin", folder / "a.bin");
  fs::create_symlink("a.bin", folder / "b.bin");
  EXPECT_THROW(WriteFile(folder / "a.bin", "x"), FileError);
  EXPECT_EQ(folder.Names(), "a.bin b.bin");
}

TEST_F(Files, ThatAreDevicesAreNotWritten) {
  for (const char* device : {"/dev/null", "/dev/full"}) {
    if (fs::exists(device)) {
      EXPECT_THAT(FailureOf([&] { WriteFile(device, "bytes"); }),
                  HasSubstr("is not a file that can be written"));
      EXPECT_TRUE(fs::is_character_file(device));
    }
  }
}

// Opened for writing, a pipe waits for somebody who reads it.
TEST_F(Files, ThatArePipesAreRefusedUnopened) {
  SKIP_ON_WINDOWS("pipes among files");
  const fs::path pipe = folder / "pipe.MES";
  ASSERT_TRUE(test::MakePipe(pipe));
  EXPECT_THROW(WriteFile(pipe, "bytes"), FileError);
  EXPECT_THROW(ReadFile(pipe), FileError);
  FileHandle file;
  EXPECT_THROW(OpenRegularFile(file, pipe, FileHandle::Access::kChange), FileError);
  EXPECT_EQ(folder.Names(), "pipe.MES");
}

TEST_F(Files, ThatCannotBeCreatedLeaveALinkToNothingAsItIs) {
  SKIP_ON_WINDOWS("links for everybody");
  fs::create_symlink("none/new.bin", folder / "link.bin");
  EXPECT_THROW(WriteFile(folder / "link.bin", "x"), FileError);
  EXPECT_TRUE(fs::is_symlink(folder / "link.bin"));
  EXPECT_EQ(fs::read_symlink(folder / "link.bin"), "none/new.bin");
}

TEST_F(Files, ThatAreMissingAreNamed) {
  const std::string failure = FailureOf([this] { ReadFile(folder / "none.MES"); });
  EXPECT_THAT(failure, HasSubstr((folder / "none.MES").string()));
  EXPECT_THAT(failure, HasSubstr("No such file"));
}

TEST_F(Files, WithoutTheirFolderAreAFolderThatIsNotReady) {
  EXPECT_THROW(ReadFile(folder / "gone/X.MES"), FolderNotReadyError);
  EXPECT_THROW(WriteFile(folder / "gone/X.MES", "x"), FolderNotReadyError);
}

TEST_F(Files, ThatAreMissingInAFolderThatIsThereAreNotAFolderThatIsNotReady) {
  EXPECT_THAT([this] { ReadFile(folder / "none.MES"); },
              ::testing::Throws<FileError>(::testing::Truly([](const FileError& error) {
                return dynamic_cast<const FolderNotReadyError*>(&error) == nullptr;
              })));
}

TEST_F(Files, ThatAreFoldersAreRefused) {
  EXPECT_THROW(ReadFile(folder.path()), FileError);
  EXPECT_THROW(WriteFile(folder.path(), "x"), FileError);
  FileHandle file;
  EXPECT_THROW(OpenRegularFile(file, folder.path(), FileHandle::Access::kChange), FileError);
}

TEST_F(Files, ThatCannotBeReadAreRefused) {
  const fs::path file = folder.Write("locked.MES", "content");
  fs::permissions(file, fs::perms::none);
  const test::OrdinaryUser ordinary_user;
  if (!ordinary_user.holds()) {
    GTEST_SKIP() << "this user may read and write every file";
  }
  EXPECT_THAT(FailureOf([&file] { ReadFile(file); }),
              testing::AllOf(HasSubstr(file.string()), HasSubstr("Permission denied")));
}

TEST_F(Files, ThatMayOnlyBeReadAreNotWritten) {
  const fs::path file = folder.Write("locked.MES", "content");
  fs::permissions(file, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  const test::OrdinaryUser ordinary_user;
  if (!ordinary_user.holds()) {
    GTEST_SKIP() << "this user may read and write every file";
  }
  EXPECT_THROW(WriteFile(file, "new"), FileError);
  FileHandle handle;
  EXPECT_THROW(OpenRegularFile(handle, file, FileHandle::Access::kChange), FileError);
  EXPECT_EQ(Slurp(file), "content");
}

TEST_F(Files, ThatAreDevicesAreNotRead) {
  if (!fs::exists("/dev/zero")) {
    GTEST_SKIP() << "needs the device file";
  }
  EXPECT_THROW(ReadFile("/dev/zero"), FileError);
}

TEST_F(Files, AreReadUpToTheLimit) {
  const fs::path file = folder.Write("eight.bin", "12345678");
  EXPECT_EQ(ReadFile(file, 8), "12345678");
  EXPECT_THAT(FailureOf([&file] { ReadFile(file, 7); }), HasSubstr("8 bytes, at most 7"));
}

TEST_F(Files, OfGigabytesAreRefusedUnread) {
  const fs::path file = folder.Write("huge.MES", "");
  fs::resize_file(file, std::uintmax_t{1} << 31U);
  EXPECT_THROW(ReadFile(file), FileError);
}

}  // namespace
}  // namespace vendlingua
