#include "core/formats/source_line.h"

#include <gtest/gtest.h>

#include "core/platform/errors.h"

namespace vendlingua {
namespace {

std::string Repeated(std::string_view text, std::size_t times) {
  std::string repeated;
  for (std::size_t i = 0; i < times; ++i) {
    repeated += text;
  }
  return repeated;
}

TEST(QuotedText, IsNothingWithoutQuotes) {
  EXPECT_EQ(QuotedText(""), std::nullopt);
  EXPECT_EQ(QuotedText("  ORG $6000 ; messages"), std::nullopt);
}

TEST(QuotedText, StandsBetweenApostrophes) {
  EXPECT_EQ(QuotedText("MSG0 DC.B '    Attendi     '"), "    Attendi     ");
}

TEST(QuotedText, StandsBetweenDoubleQuotes) { EXPECT_EQ(QuotedText("DC.B \"ABCD\",0"), "ABCD"); }

TEST(QuotedText, MayOpenAndCloseWithDifferentQuotes) {
  EXPECT_EQ(QuotedText("DC.B 'ABCD\""), "ABCD");
  EXPECT_EQ(QuotedText("DC.B \"ABCD'"), "ABCD");
}

TEST(QuotedText, TakesTheOutermostPair) {
  EXPECT_EQ(QuotedText("DC.B \"l'importo\""), "l'importo");
  EXPECT_EQ(QuotedText("DC.B 'say \"hi\"'"), "say \"hi\"");
  EXPECT_EQ(QuotedText("DC.B 'AB','CD'"), "AB','CD");
}

TEST(QuotedText, KeepsBytesAboveAscii) {
  EXPECT_EQ(QuotedText("DC.B 'Credito \xFE \xE8'"), "Credito \xFE \xE8");
}

TEST(QuotedText, ReadsADoubledApostropheAsOne) { EXPECT_EQ(QuotedText("DC.B 'AB''CD'"), "AB'CD"); }

TEST(QuotedText, ReadsADoubledApostropheAtTheEndOfTheText) {
  EXPECT_EQ(QuotedText("DC.B 'AB'''"), "AB'");
}

TEST(QuotedText, ReadsADoubledApostropheBetweenDoubleQuotes) {
  EXPECT_EQ(QuotedText("DC.B \"AB''CD\" ;"), "AB'CD");
}

// The places of the quotes are those of the line as it was: after the first removal the second one
// takes the character behind the pair ("C"), and the end of the text steps back only once.
TEST(QuotedText, DoesNotFindTheQuotesAnewAfterARemoval) {
  EXPECT_EQ(QuotedText("DC.B 'A''B''C' ;"), "A'B'''");
}

TEST(QuotedText, RemovesNothingForAPairAtTheEndOfTheShortenedLine) {
  EXPECT_EQ(QuotedText("DC.B 'A''B''C'"), "A'B''C");
}

// The doubled quotes stay, and the line loses its first character, which moves the text.
TEST(QuotedText, RemovesTheFirstCharacterForADoubledDoubleQuoteWithoutApostrophes) {
  EXPECT_EQ(QuotedText("DC.B \"AB\"\"CD\""), "B\"\"CD");
}

// The pair is the first and second double quote, so the character behind the first apostrophe goes.
TEST(QuotedText, RemovesBehindTheApostropheThatHasThePlaceOfTheDoubledDoubleQuote) {
  EXPECT_EQ(QuotedText("DC.B 'A\"\"B'"), "\"\"B");
}

// The character behind the second apostrophe goes, which is none of the text; its end steps back
// all the same.
TEST(QuotedText, LosesItsLastCharacterForADoubledDoubleQuoteBeforeTheSecondApostrophe) {
  EXPECT_EQ(QuotedText("DC.B '\"AB\"\"CD\"' ;"), "\"AB\"\"CD");
}

TEST(QuotedText, CountsAQuoteInTheFirstColumnAsSecondHalfOfAPair) {
  EXPECT_EQ(QuotedText("'ABC'"), "BC");
  EXPECT_EQ(QuotedText("\"ABC\""), "BC");
}

TEST(QuotedText, CountsOnlySixtySevenApostrophes) {
  EXPECT_EQ(QuotedText(Repeated(" '", 68)), Repeated(" '", 65) + " ");
}

TEST(QuotedText, CountsOnlySixtySevenDoubleQuotes) {
  EXPECT_EQ(QuotedText(Repeated(" \"", 68)), Repeated(" \"", 65) + " ");
}

TEST(QuotedText, CountsSixtySevenQuotesOfEachKind) {
  EXPECT_EQ(QuotedText(Repeated(" '", 67) + Repeated(" \"", 67)),
            Repeated(" '", 66) + Repeated(" \"", 66) + " ");
}

TEST(QuotedText, OpensBeforeColumn255) {
  EXPECT_EQ(QuotedText(std::string(253, ' ') + "'AB'"), "AB");
  EXPECT_EQ(QuotedText(std::string(254, ' ') + "'AB'"), std::nullopt);
}

TEST(QuotedText, MayCloseBehindColumn255) {
  EXPECT_EQ(QuotedText(" '" + std::string(300, 'x') + "'"), std::string(300, 'x'));
}

TEST(QuotedText, IsEmptyBetweenTwoDifferentQuotesSideBySide) {
  EXPECT_EQ(QuotedText("DC.B '\""), "");
}

TEST(QuotedText, RefusesAQuoteAlone) {
  EXPECT_THROW(QuotedText("; don't"), Error);
  EXPECT_THROW(QuotedText("DC.B \"AB"), Error);
}

TEST(QuotedText, RefusesApostrophesWithNothingBetween) {
  EXPECT_THROW(QuotedText("DC.B ''"), Error);
}

// The removal for the second pair would lie behind the end of the line.
TEST(QuotedText, RefusesDoubledDoubleQuotesThatRemoveBehindTheLine) {
  EXPECT_THROW(QuotedText("\"\"'"), Error);
}

}  // namespace
}  // namespace vendlingua
