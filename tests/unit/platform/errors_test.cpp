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

TEST(PathText, ReplacesWhatIsNoUtf8) {
  EXPECT_EQ(PathText("caff\xE8.MES"), "caff\uFFFD.MES");
  EXPECT_EQ(PathText("x\xFF\xFE y"), "x\uFFFD\uFFFD y");
  EXPECT_EQ(PathText("cut \xF0\x9F\x98"), "cut \uFFFD");
}

TEST(FileError, IsUtf8WhateverThePath) {
  const FileError error("\xE8/A.MES", "cannot be opened");
  EXPECT_STREQ(error.what(), "\uFFFD/A.MES: cannot be opened");
}

}  // namespace
}  // namespace vendlingua
