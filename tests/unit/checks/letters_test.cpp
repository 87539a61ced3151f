#include "core/checks/letters.h"

#include <gmock/gmock.h>

namespace vendlingua {
namespace {

TEST(LettersTest, AreThoseOfTheScriptsThatDisplaysDraw) {
  for (const char32_t letter : U"azAZàßÿÀÞšŒЯёאתアー゛") {
    EXPECT_EQ(IsLetter(letter), letter != 0) << static_cast<int>(letter);
  }
  for (const char32_t other : U" 0@[`{×÷°ªµ½№♥") {
    EXPECT_FALSE(IsLetter(other)) << static_cast<int>(other);
  }
}

TEST(LettersTest, OnlyLatinOnesHaveACase) {
  EXPECT_TRUE(IsSmallLatin(U'é'));
  EXPECT_TRUE(IsSmallLatin(U'ß'));
  EXPECT_TRUE(IsSmallLatin(U'ž'));
  EXPECT_TRUE(IsCapitalLatin(U'É'));
  EXPECT_TRUE(IsCapitalLatin(U'Ÿ'));
  EXPECT_FALSE(IsSmallLatin(U'É'));
  EXPECT_FALSE(IsCapitalLatin(U'é'));
  EXPECT_FALSE(IsSmallLatin(U'я'));
  EXPECT_FALSE(IsCapitalLatin(U'Я'));
}

TEST(LettersTest, DigitsAreTheTenOfAscii) {
  EXPECT_TRUE(IsDigit(U'0'));
  EXPECT_TRUE(IsDigit(U'9'));
  EXPECT_FALSE(IsDigit(U'²'));
}

TEST(LettersTest, ACodeIsReadByItsPicture) {
  EXPECT_EQ(DrawnCharacter(Alphabet::Of(0), 0xDF), U'°');
  EXPECT_EQ(DrawnCharacter(Alphabet::Of(1), 0xA8), U'П');
  EXPECT_EQ(DrawnCharacter(Alphabet::Of(0), 27), char32_t{0});
  EXPECT_EQ(DrawnCharacter(Alphabet::Of(0), kPlaceholder), char32_t{0});
}

}  // namespace
}  // namespace vendlingua
