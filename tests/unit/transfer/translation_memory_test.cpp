#include "core/transfer/translation_memory.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::TextFrom;
using testing::DoubleEq;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TranslationMemory MemoryOf(const std::vector<std::pair<std::string, std::string>>& messages) {
  MessageTexts origins;
  MessageTexts translations;
  for (const auto& [origin, translation] : messages) {
    origins.push_back(TextFrom(origin));
    translations.push_back(TextFrom(translation));
  }
  return {origins, translations};
}

// What was found: the number of its message, or -1.
int NumberOf(const Translated* found) {
  return found == nullptr ? -1 : static_cast<int>(found->message);
}

std::vector<std::size_t> NumbersOf(const std::vector<TranslationMemory::Similar>& similar) {
  std::vector<std::size_t> numbers;
  for (const auto& [translated, ratio] : similar) {
    numbers.push_back(translated->message);
  }
  return numbers;
}

TEST(TranslationMemory, FindsTheVeryText) {
  const auto memory = MemoryOf({{"Attendi", "Wait"}, {"Fermo", "Stopped"}});
  const Translated* found = memory.SameText(TextFrom("Fermo"));
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->message, 1U);
  EXPECT_EQ(found->origin, TextFrom("Fermo"));
  EXPECT_EQ(found->translation, TextFrom("Stopped"));
  EXPECT_EQ(memory.SameText(TextFrom("fermo")), nullptr);
  EXPECT_EQ(memory.SameText(TextFrom(" Fermo")), nullptr);
}

TEST(TranslationMemory, TakesATextWhoseTranslationsAgree) {
  const auto memory = MemoryOf({{"x", "y"}, {"Fermo", "Stopped"}, {"Fermo", "Stopped"}});
  EXPECT_EQ(NumberOf(memory.SameText(TextFrom("Fermo"))), 1);
}

TEST(TranslationMemory, TakesNoTextWhoseTranslationsDiffer) {
  const auto memory = MemoryOf({{"Fermo", "Stopped"}, {"Fermo", "Halted"}, {"Fermo", "Stopped"}});
  EXPECT_EQ(memory.SameText(TextFrom("Fermo")), nullptr);
  EXPECT_EQ(memory.SameWords(TextFrom("Fermo")), nullptr);
}

TEST(TranslationMemory, FindsTheSameWordsInAnotherLayout) {
  const auto memory = MemoryOf({{"  Solo SNACK  ", " SNACK only "}, {"Nr. \xFE", "No. \xFE"}});
  EXPECT_EQ(NumberOf(memory.SameWords(TextFrom("Solo SNACK"))), 0);
  EXPECT_EQ(NumberOf(memory.SameWords(TextFrom("Nr.   \xFE\xFE"))), 1);
  EXPECT_EQ(NumberOf(memory.SameWords(TextFrom("Nr."))), -1);
}

TEST(TranslationMemory, TakesWordsWhoseTranslationsDifferInTheirLayoutOnly) {
  const auto memory = MemoryOf({{" Fermo", " Stopped"}, {"Fermo ", "Stopped"}});
  EXPECT_EQ(NumberOf(memory.SameWords(TextFrom("  Fermo"))), 0);
  const auto other = MemoryOf({{" Fermo", " Stopped"}, {"Fermo ", "Halted"}});
  EXPECT_EQ(NumberOf(other.SameWords(TextFrom("  Fermo"))), -1);
}

TEST(TranslationMemory, LearnsNothingFromMessagesWithoutWords) {
  const auto memory = MemoryOf({{"   ", "Blank"}, {"\xFE\xFE", "Number"}, {"Fermo", "  "}});
  EXPECT_EQ(memory.SameText(TextFrom("")), nullptr);
  EXPECT_EQ(memory.SameText(TextFrom("\xFE\xFE")), nullptr);
  EXPECT_EQ(memory.SameText(TextFrom("Fermo")), nullptr);
  EXPECT_THAT(memory.SimilarTo(TextFrom("Fermo")), IsEmpty());
}

TEST(TranslationMemory, IgnoresMessagesThatOneLanguageLacks) {
  const MessageTexts origins = {TextFrom("Attendi"), TextFrom("Fermo")};
  const TranslationMemory memory(origins, std::span(origins).first(1));
  EXPECT_EQ(NumberOf(memory.SameText(TextFrom("Attendi"))), 0);
  EXPECT_EQ(NumberOf(memory.SameText(TextFrom("Fermo"))), -1);
}

TEST(TranslationMemory, ListsWhatIsSimilarBestFirst) {
  const auto memory = MemoryOf({{"Prova latte", "Milk test"},
                                {"Prova acqua!", "Water!"},
                                {"Diagnosi", "Diagnosis"},
                                {"  Prova acqua  ", "Water test"}});
  const auto similar = memory.SimilarTo(TextFrom("Prova acqua"), 0.5);
  EXPECT_THAT(NumbersOf(similar), ElementsAre(3, 1, 0));
  EXPECT_THAT(similar[0].ratio, DoubleEq(1));
  // 11 of 11 + 12 characters.
  EXPECT_THAT(similar[1].ratio, DoubleEq(22.0 / 23));
}

TEST(TranslationMemory, ListsNothingBelowTheLeastRatio) {
  // 6 common characters of 8 + 8 are 0.75, 5 are less.
  const auto memory = MemoryOf({{"abcdefxx", "six"}, {"abcdexxx", "five"}});
  EXPECT_THAT(NumbersOf(memory.SimilarTo(TextFrom("abcdefgh"))), ElementsAre(0));
}

TEST(TranslationMemory, DoesNotTakePaddingForSimilarity) {
  const auto memory = MemoryOf({{"Reset          \xFE", "Reset          \xFE"}});
  EXPECT_THAT(memory.SimilarTo(TextFrom("Pronta         \xFE")), IsEmpty());
}

TEST(TranslationMemory, ListsEachTranslationOnce) {
  const auto memory = MemoryOf({{"Fermo", "Stopped"}, {"Fermo", "Stopped"}, {"Fermo", "Halted"}});
  EXPECT_THAT(NumbersOf(memory.SimilarTo(TextFrom("Fermo"))), ElementsAre(0, 2));
}

TEST(TranslationMemory, LearnsAnotherTranslation) {
  auto memory = MemoryOf({{"   ", ""}, {"Attendi", "Wait"}, {"Fermo", "Stopped"}});
  memory.Learn(2, TextFrom("Halted"));
  EXPECT_EQ(memory.SameText(TextFrom("Fermo"))->translation, TextFrom("Halted"));
  EXPECT_EQ(memory.SameWords(TextFrom(" Fermo"))->translation, TextFrom("Halted"));
  EXPECT_EQ(memory.SameText(TextFrom("Attendi"))->translation, TextFrom("Wait"));
}

TEST(TranslationMemory, ForgetsAMessageWhoseTranslationIsBlank) {
  auto memory = MemoryOf({{"Fermo", "Stopped"}, {"Fermo", "Stopped"}});
  memory.Learn(0, DisplayText());
  EXPECT_EQ(NumberOf(memory.SameText(TextFrom("Fermo"))), 1);
  EXPECT_EQ(NumberOf(memory.SameWords(TextFrom(" Fermo"))), 1);
  EXPECT_THAT(NumbersOf(memory.SimilarTo(TextFrom("Fermo"))), ElementsAre(1));
  memory.Learn(1, TextFrom("\xFE"));
  EXPECT_EQ(memory.SameText(TextFrom("Fermo")), nullptr);
  EXPECT_EQ(memory.SameWords(TextFrom("Fermo")), nullptr);
  EXPECT_THAT(memory.SimilarTo(TextFrom("Fermo")), IsEmpty());
  memory.Learn(0, TextFrom("Halted"));
  EXPECT_EQ(NumberOf(memory.SameText(TextFrom("Fermo"))), 0);
}

TEST(TranslationMemory, LearnsNothingForAMessageWithoutWordsOrBehindTheLast) {
  auto memory = MemoryOf({{"   ", ""}, {"Fermo", "Stopped"}});
  memory.Learn(0, TextFrom("Blank"));
  memory.Learn(2, TextFrom("Behind"));
  EXPECT_EQ(NumberOf(memory.SameText(TextFrom("Fermo"))), 1);
  EXPECT_THAT(NumbersOf(memory.SimilarTo(TextFrom("Fermo"), 0)), ElementsAre(1));
}

TEST(TranslationMemory, MayBeEmpty) {
  const TranslationMemory memory({}, {});
  EXPECT_EQ(memory.SameText(TextFrom("Fermo")), nullptr);
  EXPECT_THAT(memory.SimilarTo(TextFrom("Fermo"), 0), SizeIs(0));
}

}  // namespace
}  // namespace vendlingua
