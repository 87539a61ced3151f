#include "core/exchange/language_tags.h"

#include <gmock/gmock.h>

namespace vendlingua {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> TagsOf(std::vector<std::string> names) {
  MessageSet set;
  set.language_names = std::move(names);
  return LanguageTags(set);
}

TEST(LanguageTags, AreThoseOfTheNamesThatLanguagesGiveThemselves) {
  EXPECT_THAT(TagsOf({"Default", "ITALIANO", "ENGLISH", "DEUTSCH", "FRANCAIS", "ESPANOL",
                      "PORTUGUES", "NEDERLANDS", "DANSK", "SVENSKA"}),
              ElementsAre("it", "it", "en", "de", "fr", "es", "pt", "nl", "da", "sv"));
}

TEST(LanguageTags, AreFoundInAnyCaseAndWithAccents) {
  EXPECT_THAT(TagsOf({"Default", "  Français ", "español", "inglese"}),
              ElementsAre("it", "fr", "es", "en"));
}

TEST(LanguageTags, AreUniqueAmongTheLanguages) {
  EXPECT_THAT(TagsOf({"Default", "ENGLISH", "English"}), ElementsAre("it", "en", "en-x-lang2"));
}

TEST(LanguageTags, SayTheNumberOfALanguageThatIsNotKnown) {
  EXPECT_THAT(TagsOf({"Default", "KLINGON", "", "Привет"}),
              ElementsAre("it", "x-lang1", "x-lang2", "x-lang3"));
  for (const std::string& tag : TagsOf({"Default", "", "DANSK", "DANSK"})) {
    EXPECT_TRUE(IsLanguageTag(tag)) << tag;
  }
}

TEST(LanguageTags, HaveTheFormOfTheSchema) {
  for (const char* tag : {"it", "pt-BR", "zh-Hant-TW", "x-lang100", "i", "abcdefgh-12345678"}) {
    EXPECT_TRUE(IsLanguageTag(tag)) << tag;
  }
  for (const char* tag : {"", "-", "it-", "-it", "it--IT", "1t", "abcdefghi", "it-123456789",
                          "it_IT", "it IT", "è"}) {
    EXPECT_FALSE(IsLanguageTag(tag)) << tag;
  }
}

}  // namespace
}  // namespace vendlingua
