#include "core/platform/errors.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "support/skip_on_windows.h"

namespace vendlingua {
namespace {

FileError TooLarge(const std::filesystem::path& file) {
  return {file, UiTextId::kFileIsTooLarge, 20, 10};
}

TEST(FileError, BeginsWithThePathOfTheFile) {
  EXPECT_STREQ(TooLarge("folder/FW0417AB.MES").what(),
               "folder/FW0417AB.MES: is too large: 20 bytes, at most 10 are read");
}

TEST(FileError, GivesItsReasonWithoutThePath) {
  EXPECT_EQ(TooLarge("folder/FW0417AB.MES").reason(),
            "is too large: 20 bytes, at most 10 are read");
}

TEST(FileError, IsAnError) {
  EXPECT_THROW(throw FolderNotReadyError("a", UiTextId::kFileIsEmpty), Error);
}

TEST(FileError, IsSaidInTheInterfaceLanguage) {
  UiText texts;
  texts.Set(static_cast<std::size_t>(UiTextId::kFileIsTooLarge), "zu gross: {1} statt {0}");
  EXPECT_EQ(TooLarge("A.MES").In(texts), "A.MES: zu gross: 10 statt 20");
}

TEST(FileError, IsUtf8WhateverThePath) {
  SKIP_ON_WINDOWS("names that are no text");
  EXPECT_THAT(TooLarge("\xE8/A.MES").what(), testing::StartsWith("\uFFFD/A.MES: is too large"));
}

TEST(MessageOf, SaysAnErrorInTheInterfaceLanguage) {
  UiText texts;
  texts.Set(static_cast<std::size_t>(UiTextId::kNoWidth), "keine Breite");
  EXPECT_EQ(MessageOf(Error(UiTextId::kNoWidth), texts), "keine Breite");
  EXPECT_EQ(MessageOf(std::runtime_error("bad luck"), texts), "bad luck");
}

TEST(NamingFile, NamesTheFileOfAnErrorThatNamesNone) {
  try {
    NamingFile("A.MES", [] { throw Error(UiTextId::kNoWidth); });
    FAIL();
  } catch (const FileError& error) {
    EXPECT_STREQ(error.what(), "A.MES: the message width is 0");
  }
}

TEST(PathText, IsUtf8) {
  const std::filesystem::path path(u8"caffè.MES");
  EXPECT_EQ(PathText(path), "caffè.MES");
}

TEST(PathText, ReplacesWhatIsNoUtf8) {
  SKIP_ON_WINDOWS("names that are no text");
  EXPECT_EQ(PathText("caff\xE8.MES"), "caff\uFFFD.MES");
  EXPECT_EQ(PathText("x\xFF\xFE y"), "x\uFFFD\uFFFD y");
  EXPECT_EQ(PathText("cut \xF0\x9F\x98"), "cut \uFFFD");
}

}  // namespace
}  // namespace vendlingua
