#include "core/transfer/text_keys.h"

#include <gmock/gmock.h>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;

TEST(HasWords, IsFalseForBlanksAndPlaceholders) {
  EXPECT_FALSE(HasWords(Codes("")));
  EXPECT_FALSE(HasWords(Codes("    ")));
  EXPECT_FALSE(HasWords(Codes(" \xFE\xFE ")));
}

TEST(HasWords, IsTrueForAnythingElse) {
  EXPECT_TRUE(HasWords(Codes("  a")));
  EXPECT_TRUE(HasWords(Codes("\xFE:\xFE")));
  EXPECT_TRUE(HasWords(Codes("12")));
}

TEST(WithoutLayout, TakesBlanksFromTheEnds) {
  EXPECT_EQ(WithoutLayout(Codes("   Diagnosi   ")), "Diagnosi");
  EXPECT_EQ(WithoutLayout(Codes("    ")), "");
}

TEST(WithoutLayout, KeepsOneOfARun) {
  EXPECT_EQ(WithoutLayout(Codes("Prezzo   \xFE \xFE\xFE\xFE")), "Prezzo \xFE \xFE");
}

TEST(WithoutLayout, KeepsDoubledLetters) { EXPECT_EQ(WithoutLayout(Codes("tazza")), "tazza"); }

TEST(WordsKey, IsTheSameForOtherBlanks) {
  EXPECT_EQ(WordsKey(Codes(" Solo SNACK ")), WordsKey(Codes("Solo   SNACK")));
  EXPECT_EQ(WordsKey(Codes("nr. \xFE\xFE")), WordsKey(Codes("nr.\xFE\xFE")));
}

TEST(WordsKey, IsTheSameForOtherPlaceholderColumns) {
  EXPECT_EQ(WordsKey(Codes("Nr. \xFE\xFE\xFE")), WordsKey(Codes("Nr.      \xFE\xFE")));
}

TEST(WordsKey, DiffersForOtherWords) {
  EXPECT_NE(WordsKey(Codes("Nr. \xFE")), WordsKey(Codes("nr. \xFE")));
  EXPECT_NE(WordsKey(Codes("E12")), WordsKey(Codes("E13")));
}

TEST(WordsKey, DiffersForMorePlaceholderRuns) {
  EXPECT_NE(WordsKey(Codes("Nr. \xFE\xFE")), WordsKey(Codes("Nr. \xFE \xFE")));
  EXPECT_NE(WordsKey(Codes("Nr. \xFE")), WordsKey(Codes("Nr.")));
}

}  // namespace
}  // namespace vendlingua
