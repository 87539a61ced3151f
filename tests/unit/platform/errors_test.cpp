#include "core/platform/errors.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace vendlingua {
namespace {

TEST(FileError, BeginsWithThePathOfTheFile) {
  const FileError error("folder/FW0417AB.MES", "cannot be opened");
  EXPECT_STREQ(error.what(), "folder/FW0417AB.MES: cannot be opened");
}

TEST(FileError, GivesItsReasonWithoutThePath) {
  EXPECT_EQ(FileError("folder/FW0417AB.MES", "cannot be opened").reason(), "cannot be opened");
}

TEST(FileError, IsAnError) { EXPECT_THROW(throw FolderNotReadyError("a", "b"), Error); }

TEST(PathText, IsUtf8) {
  const std::filesystem::path path(u8"caffè.MES");
  EXPECT_EQ(PathText(path), "caffè.MES");
}

}  // namespace
}  // namespace vendlingua
