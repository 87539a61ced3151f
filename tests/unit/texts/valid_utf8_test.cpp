#include "core/texts/valid_utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace vendlingua {
namespace {

TEST(ValidUtf8, KeepsText) {
  for (const std::string text : {"", "plain", "caffè", "日本語", "\U0001F600", "\u0001\u007F"}) {
    EXPECT_EQ(ValidUtf8(text), text);
  }
  EXPECT_EQ(ValidUtf8(std::string("a\0b", 3)), std::string("a\0b", 3));
}

TEST(ValidUtf8, ReplacesBytesThatBeginNoCharacter) {
  EXPECT_EQ(ValidUtf8("x\xFFy"), "x\uFFFDy");
  EXPECT_EQ(ValidUtf8("\x80\xBF"), "\uFFFD\uFFFD");
}

TEST(ValidUtf8, ReplacesACharacterThatIsCut) {
  EXPECT_EQ(ValidUtf8("\xE8 la vita"), "\uFFFD la vita");
  EXPECT_EQ(ValidUtf8("\xF0\x9F\x98"), "\uFFFD");
}

TEST(ValidUtf8, ReplacesOverlongForms) { EXPECT_EQ(ValidUtf8("\xC0\xAF"), "\uFFFD"); }

TEST(ValidUtf8, ReplacesHalvesOfSurrogatePairs) { EXPECT_EQ(ValidUtf8("\xED\xA0\x80"), "\uFFFD"); }

TEST(ValidUtf8, ReplacesWhatIsBeyondUnicode) { EXPECT_EQ(ValidUtf8("\xF4\x90\x80\x80"), "\uFFFD"); }

}  // namespace
}  // namespace vendlingua
