#include "core/texts/ui_sentence.h"

#include <gtest/gtest.h>

#include "core/texts/english_texts.h"

namespace vendlingua {
namespace {

// Interface texts that have only the one of kAtLine.
UiText TextsWith(const std::string& at_line) {
  UiText texts;
  texts.Set(static_cast<std::size_t>(UiTextId::kAtLine), at_line);
  return texts;
}

TEST(UiSentence, PutsValuesIntoTheirPlaces) {
  const UiSentence sentence(UiTextId::kAtLine, 7, "bad");
  EXPECT_EQ(sentence.In(TextsWith("{1}, Zeile {0}")), "bad, Zeile 7");
}

TEST(UiSentence, SaysItsPartsInTheSameLanguage) {
  UiText texts = TextsWith("Zeile {0}: {1}");
  texts.Set(static_cast<std::size_t>(UiTextId::kLoneQuote), "ein Anführungszeichen");
  const UiSentence sentence(UiTextId::kAtLine, 7, UiSentence(UiTextId::kLoneQuote));
  EXPECT_EQ(sentence.In(texts), "Zeile 7: ein Anführungszeichen");
}

TEST(UiSentence, IsSaidInEnglishWhereALanguageLacksIt) {
  EXPECT_EQ(UiSentence(UiTextId::kAtLine, 7, "bad").In(UiText()), "line 7: bad");
}

TEST(UiSentence, IsSaidInEnglishWhereBracesFitNoValue) {
  for (const char* text : {"{2}", "{", "}", "{0:d}", "{name}", "{0"}) {
    EXPECT_EQ(UiSentence(UiTextId::kAtLine, 7, "bad").In(TextsWith(text)), "line 7: bad") << text;
  }
}

TEST(UiSentence, TakesBracesInAValueAsTheyStand) {
  EXPECT_EQ(UiSentence(UiTextId::kAtLine, 7, "{0} {").In(EnglishTexts()), "line 7: {0} {");
}

TEST(UiSentence, SaysWordsOfTheSystemAsTheyStand) {
  EXPECT_EQ(UiSentence::Verbatim("Permission denied {0}").In(UiText()), "Permission denied {0}");
}

}  // namespace
}  // namespace vendlingua
