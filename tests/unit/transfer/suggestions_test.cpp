#include "core/transfer/suggestions.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::TextFrom;
using testing::DoubleEq;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::size_t kMostSuggestions = 9;

TranslationMemory OneTranslation(const std::string& origin, const std::string& translation) {
  const DisplayText from = TextFrom(origin);
  const DisplayText into = TextFrom(translation);
  return {std::span(&from, 1), std::span(&into, 1)};
}

std::vector<std::size_t> MemoriesOf(const std::vector<Suggestion>& suggestions) {
  std::vector<std::size_t> memories;
  for (const Suggestion& suggestion : suggestions) {
    memories.push_back(suggestion.memory);
  }
  return memories;
}

TEST(SuggestionsFor, ComeFromAllMemoriesTheMostSimilarFirst) {
  const std::vector<TranslationMemory> memories = {
      OneTranslation("Prova acqua!!", "Water?"), OneTranslation("Diagnosi", "Diagnosis"),
      OneTranslation("Prova acqua", "Water test"), OneTranslation("Prova acqua!", "Water!")};
  const auto suggestions = SuggestionsFor(TextFrom("Prova acqua"), 16, memories, kMostSuggestions);
  EXPECT_THAT(MemoriesOf(suggestions), ElementsAre(2, 3, 0));
  EXPECT_THAT(suggestions[0].ratio, DoubleEq(1));
  EXPECT_THAT(suggestions[1].ratio, DoubleEq(22.0 / 23));
  EXPECT_EQ(suggestions[1].translated.translation, TextFrom("Water!"));
  EXPECT_EQ(suggestions[1].translated.origin, TextFrom("Prova acqua!"));
}

TEST(SuggestionsFor, KeepTheOrderOfTheMemoriesAmongEquals) {
  const std::vector<TranslationMemory> memories = {OneTranslation("Fermo", "b"),
                                                   OneTranslation("Fermo", "a")};
  EXPECT_THAT(MemoriesOf(SuggestionsFor(TextFrom("Fermo"), 16, memories, kMostSuggestions)),
              ElementsAre(0, 1));
}

TEST(SuggestionsFor, NameEachTranslationOnce) {
  const std::vector<TranslationMemory> memories = {OneTranslation("Fermo", " Stopped"),
                                                   OneTranslation("Fermo", "Stopped")};
  EXPECT_THAT(MemoriesOf(SuggestionsFor(TextFrom("Fermo"), 16, memories, kMostSuggestions)),
              ElementsAre(0));
}

TEST(SuggestionsFor, AreNoMoreThanAskedFor) {
  std::vector<TranslationMemory> memories;
  for (const char* translation : {"a", "b", "c"}) {
    memories.push_back(OneTranslation("Fermo", translation));
  }
  EXPECT_THAT(SuggestionsFor(TextFrom("Fermo"), 16, memories, 2), SizeIs(2));
}

TEST(SuggestionsFor, AreLaidOutForTheText) {
  const std::vector<TranslationMemory> memories = {OneTranslation("Nr. \xFE", "No. \xFE")};
  const auto suggestions = SuggestionsFor(TextFrom("Nr.  \xFE\xFE"), 8, memories, kMostSuggestions);
  ASSERT_THAT(suggestions, SizeIs(1));
  ASSERT_TRUE(suggestions[0].laid_out);
  EXPECT_EQ(test::Text(*suggestions[0].laid_out), "No.  \xFE\xFE ");
}

TEST(SuggestionsFor, MayNotFit) {
  const std::vector<TranslationMemory> memories = {OneTranslation("Fermo", "Out of order")};
  const auto suggestions = SuggestionsFor(TextFrom("Fermo"), 8, memories, kMostSuggestions);
  ASSERT_THAT(suggestions, SizeIs(1));
  EXPECT_FALSE(suggestions[0].laid_out);
}

TEST(SuggestionsFor, NeedAMemory) {
  EXPECT_THAT(SuggestionsFor(TextFrom("Fermo"), 8, {}, kMostSuggestions), IsEmpty());
}

}  // namespace
}  // namespace vendlingua
