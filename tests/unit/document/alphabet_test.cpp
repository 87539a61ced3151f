#include "core/document/alphabet.h"

#include <gmock/gmock.h>

#include "support/display_types.h"
#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::AllCodes;
using test::kCyrillic;
using test::kHebrew;
using test::kKatakana;
using test::kNormal;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class EveryAlphabet : public ::testing::TestWithParam<std::size_t> {};

TEST_P(EveryAlphabet, TakesEveryCodeOutAndInAgain) {
  const Alphabet& alphabet = Alphabet::Of(GetParam());
  for (const DisplayCode code : AllCodes()) {
    EXPECT_EQ(alphabet.CodesOf(alphabet.TextOf({&code, 1})).codes, DisplayCodes{code}) << +code;
  }
  const DrawnText drawn = alphabet.CodesOf(alphabet.TextOf(AllCodes()));
  EXPECT_EQ(drawn.codes, AllCodes());
  EXPECT_THAT(drawn.unknown, IsEmpty());
}

TEST_P(EveryAlphabet, TakesWhatOlderTablesHold) {
  const Alphabet& alphabet = Alphabet::Of(GetParam());
  EXPECT_EQ(alphabet.CodesOf("\x01\x7F").codes, (DisplayCodes{1, 127}));
  EXPECT_EQ(alphabet.CodesOf("ß").codes, (DisplayCodes{223}));
  EXPECT_EQ(alphabet.CodesOf("þ").codes, (DisplayCodes{254}));
}

INSTANTIATE_TEST_SUITE_P(Displays, EveryAlphabet,
                         ::testing::Values(kNormal, kCyrillic, kKatakana, kHebrew));

TEST(AlphabetTest, ADegreeSignComesOutAsOneAlthoughItsCodeIsThatOfSharpS) {
  const Alphabet& alphabet = Alphabet::Of(kNormal);
  EXPECT_EQ(alphabet.TextOf(DisplayCodes{'6', '0', 223, 'C'}), "60°C");
  EXPECT_EQ(alphabet.CodesOf("60°C").codes, (DisplayCodes{'6', '0', 223, 'C'}));
}

TEST(AlphabetTest, TheSecondCodeOfOnePictureTravelsByItsNumber) {
  EXPECT_EQ(Alphabet::Of(kNormal).TextOf(DisplayCodes{176}), "\uF0B0");
  EXPECT_EQ(Alphabet::Of(kKatakana).TextOf(DisplayCodes{'g', 231}), "g\uF0E7");
}

TEST(AlphabetTest, APictureWithoutACharacterTravelsByItsNumber) {
  EXPECT_EQ(Alphabet::Of(kNormal).TextOf(DisplayCodes{28}), "\uF01C");
}

TEST(AlphabetTest, CyrillicWordsAreWrittenInOneAlphabet) {
  const Alphabet& alphabet = Alphabet::Of(kCyrillic);
  const DisplayCodes hello = {168, 'p', 184, 179, 'e', 191};
  EXPECT_EQ(alphabet.CodesOf("Привет").codes, hello);
  EXPECT_EQ(alphabet.TextOf(hello), "Привет");
}

TEST(AlphabetTest, ACyrillicTextKeepsItsLatinWordsAndCodes) {
  const Alphabet& alphabet = Alphabet::Of(kCyrillic);
  const DrawnText drawn = alphabet.CodesOf("E08 НЕТ ВОДЫ USB");
  EXPECT_EQ(alphabet.TextOf(drawn.codes), "E08 НЕТ ВОДЫ USB");
  EXPECT_EQ(alphabet.TextOf(alphabet.CodesOf("EMC").codes), "EMC");
}

TEST(AlphabetTest, KatakanaOfEitherWidthGoIn) {
  const Alphabet& alphabet = Alphabet::Of(kKatakana);
  EXPECT_EQ(alphabet.CodesOf("アﾝ").codes, (DisplayCodes{177, 221}));
  EXPECT_EQ(alphabet.TextOf(DisplayCodes{177, 221}), "アン");
}

TEST(AlphabetTest, AVoicedKatakanaTakesTwoCells) {
  const Alphabet& alphabet = Alphabet::Of(kKatakana);
  EXPECT_EQ(alphabet.CodesOf("ガパ").codes, (DisplayCodes{182, 222, 202, 223}));
}

TEST(AlphabetTest, HebrewLettersHaveTheirCodes) {
  EXPECT_EQ(Alphabet::Of(kHebrew).CodesOf("את").codes, (DisplayCodes{224, 250}));
}

TEST(AlphabetTest, AllThatTheDisplayCannotDrawIsNamedOnce) {
  const DrawnText drawn = Alphabet::Of(kNormal).CodesOf("ПaПж\xC3");
  EXPECT_EQ(drawn.codes, (DisplayCodes{'a'}));
  EXPECT_THAT(drawn.unknown, ElementsAre("П", "ж", "\xC3"));
}

TEST(AlphabetTest, ANumberThatIsNoDisplayTypeHasTheNormalAlphabet) {
  EXPECT_EQ(&Alphabet::Of(4), &Alphabet::Of(kNormal));
}

TEST(AlphabetTest, GlyphsAreTheDotsOfTheCharacterGenerator) {
  const Glyph& letter = Alphabet::Of(kNormal).GlyphOf('T');
  EXPECT_THAT(letter.rows, ElementsAre(0x1F, 4, 4, 4, 4, 4, 4, 0));
  EXPECT_TRUE(Alphabet::Of(kNormal).GlyphOf(' ').IsEmpty());
}

}  // namespace
}  // namespace vendlingua
