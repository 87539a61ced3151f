#include "core/formats/settings_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vendlingua {
namespace {

TEST(ParseSettings, TakesTheNameBehindTheKey) {
  EXPECT_EQ(ParseSettings("Lingua=english\r\n"), "english");
}

TEST(ParseSettings, TakesLinesThatEndInLfOrWithTheFile) {
  EXPECT_EQ(ParseSettings("Lingua=english\n"), "english");
  EXPECT_EQ(ParseSettings("Lingua=english"), "english");
}

TEST(ParseSettings, SkipsTheFirstSevenCharactersWhateverTheyAre) {
  EXPECT_EQ(ParseSettings("1234567deutsch\r\n"), "deutsch");
}

TEST(ParseSettings, ReadsOnlyTheFirstLine) {
  EXPECT_EQ(ParseSettings("Lingua=english\r\nLingua=deutsch\r\n"), "english");
}

TEST(ParseSettings, TakesAnEmptyName) { EXPECT_EQ(ParseSettings("Lingua=\r\n"), ""); }

TEST(ParseSettings, ReadsWindows1252) {
  EXPECT_EQ(ParseSettings("Lingua=fran\xE7"
                          "ais\r\n"),
            "français");
}

TEST(ParseSettings, ReadsUtf8BehindAByteOrderMark) {
  EXPECT_EQ(ParseSettings("\xEF\xBB\xBFLingua=русский\r\n"), "русский");
  EXPECT_EQ(ParseSettings("\xEF\xBB\xBFLingua=english"), "english");
}

TEST(ParseSettings, ReplacesWhatIsNoUtf8BehindAByteOrderMark) {
  EXPECT_EQ(ParseSettings("\xEF\xBB\xBFLingua=fran\xE7"
                          "ais\r\n"),
            "fran\uFFFDais");
}

TEST(ParseSettings, IsNothingWhenTheLineIsShorterThanTheKey) {
  for (const char* content : {"Lingua\r\n", "\r\nLingua=english\r\n", "", "\xEF\xBB\xBF",
                              "\xEF\xBB\xBFLingua\r\n", "\xEF\xBB\xBF\nLingua=english\n"}) {
    EXPECT_EQ(ParseSettings(content), std::nullopt) << content;
  }
}

TEST(ComposeSettings, IsOneLine) { EXPECT_EQ(ComposeSettings("english"), "Lingua=english\r\n"); }

TEST(ComposeSettings, IsWindows1252WhereThatHasTheName) {
  EXPECT_EQ(ComposeSettings("español €"), "Lingua=espa\xF1ol \x80\r\n");
}

TEST(ComposeSettings, IsUtf8BehindAByteOrderMarkForAnyOtherName) {
  EXPECT_EQ(ComposeSettings("č"), "\xEF\xBB\xBFLingua=\xC4\x8D\r\n");
}

TEST(ComposeSettings, IsReadBack) {
  for (const std::string name :
       {"", "english", "français", "ÿ\u0081", "česky", "日本語", "a\uFFFD"}) {
    EXPECT_EQ(ParseSettings(ComposeSettings(name)), name);
  }
}

}  // namespace
}  // namespace vendlingua
