#include "core/transfer/carry_over.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::TextFrom;
using testing::DoubleEq;
using testing::Eq;

constexpr std::size_t kCarriedWidth = 16;

std::string Trimmed(const DisplayText& text) { return test::Text(TrimRight(text.Cells())); }

MessageTexts CarriedTextsFrom(const std::vector<std::string>& messages) {
  MessageTexts texts;
  for (const std::string& message : messages) {
    texts.push_back(TextFrom(message));
  }
  return texts;
}

class CarryTest : public testing::Test {
 protected:
  // The firmware's texts now, and an older file's with their translations.
  void Carry(const std::vector<std::string>& origin, const std::vector<std::string>& older_origin,
             const std::vector<std::string>& older_texts) {
    task_ = {kCarriedWidth, CarriedTextsFrom(origin), CarriedTextsFrom(origin),
             CarriedTextsFrom(older_origin), CarriedTextsFrom(older_texts)};
  }

  CarriedMessage Carried(std::size_t message) const { return CarryOver(task_).at(message); }

  CarriedMessage Pretranslated(const std::string& current) const {
    return Pretranslate(task_, CarriedTextsFrom({current})).at(0);
  }

  CarryTask task_;
};

using CarryOverTest = CarryTest;

TEST_F(CarryOverTest, KeepsASameMessageByteForByte) {
  Carry({"new", "Nr. \xFE\xFE", "Vuoto"}, {"Nr. \xFE\xFE", "Vuoto"}, {"No.x\xFE ", " "});
  EXPECT_EQ(Carried(1).result, CarryResult::kKept);
  EXPECT_EQ(Carried(1).text, TextFrom("No.x\xFE "));
  EXPECT_THAT(Carried(1).from, Eq(0U));
  EXPECT_EQ(Carried(2).result, CarryResult::kKept);
  EXPECT_EQ(Carried(2).text, TextFrom(""));
}

TEST_F(CarryOverTest, FillsAnotherMessageOfTheSameText) {
  Carry({"Fermo", "Fermo"}, {"Fermo", "x"}, {"Stopped", "y"});
  EXPECT_EQ(Carried(1).result, CarryResult::kFilled);
  EXPECT_EQ(Trimmed(Carried(1).text), "Stopped");
  EXPECT_THAT(Carried(1).from, Eq(0U));
}

TEST_F(CarryOverTest, LaysTheSameWordsOutAnew) {
  Carry({"   Fermo   ", "Nr.      \xFE\xFE"}, {"Fermo", "Nr. \xFE"}, {"Halt", "No. \xFE"});
  EXPECT_EQ(Carried(0).result, CarryResult::kAdapted);
  // Centred in 16 cells the origin is not: 3 blanks before it, 8 behind.
  EXPECT_EQ(Trimmed(Carried(0).text), "   Halt");
  EXPECT_EQ(Carried(1).result, CarryResult::kAdapted);
  EXPECT_EQ(Trimmed(Carried(1).text), "No.      \xFE\xFE");
  EXPECT_THAT(Carried(1).from, Eq(1U));
}

TEST_F(CarryOverTest, SuggestsWhatDoesNotFitAnyMore) {
  Carry({"Nr. \xFE"}, {"Nr.      \xFE"}, {"Number   \xFE"});
  EXPECT_EQ(Carried(0).result, CarryResult::kSuggested);
  EXPECT_EQ(Trimmed(Carried(0).text), "Nr. \xFE");
  EXPECT_EQ(Carried(0).suggestion, TextFrom("Number   \xFE"));
  EXPECT_THAT(Carried(0).ratio, DoubleEq(1));
}

TEST_F(CarryOverTest, SuggestsWhereTranslationsDiffer) {
  Carry({"a", "b", "c", "Fermo"}, {"Fermo", "Fermo"}, {"Stopped", "Halted"});
  EXPECT_EQ(Carried(3).result, CarryResult::kSuggested);
  EXPECT_EQ(Carried(3).suggestion, TextFrom("Stopped"));
  EXPECT_EQ(Trimmed(Carried(3).text), "Fermo");
}

TEST_F(CarryOverTest, NeverStoresWhatIsOnlySimilar) {
  Carry({"Prova acqua!"}, {"Prova acqua"}, {"Water test"});
  const CarriedMessage carried = Carried(0);
  EXPECT_EQ(carried.result, CarryResult::kSuggested);
  EXPECT_EQ(Trimmed(carried.text), "Prova acqua!");
  EXPECT_EQ(carried.suggestion, TextFrom("Water test"));
  EXPECT_THAT(carried.from, Eq(0U));
  EXPECT_THAT(carried.ratio, DoubleEq(22.0 / 23));
}

TEST_F(CarryOverTest, LeavesTheOriginWhereThereIsNothing) {
  Carry({"Nuovo"}, {"Attendi"}, {"Wait"});
  EXPECT_EQ(Carried(0).result, CarryResult::kNone);
  EXPECT_EQ(Trimmed(Carried(0).text), "Nuovo");
  EXPECT_FALSE(Carried(0).from);
  EXPECT_FALSE(Carried(0).suggestion);
}

TEST_F(CarryOverTest, KeepsANewMessageWithoutWords) {
  Carry({"a", " \xFE\xFE"}, {"a"}, {"b"});
  EXPECT_EQ(Carried(1).result, CarryResult::kKept);
  EXPECT_EQ(Carried(1).text, TextFrom(" \xFE\xFE"));
}

TEST_F(CarryOverTest, CutsNothingForANarrowerDisplay) {
  Carry({"Fermo"}, {"Fermo"}, {"Out of order now!"});
  EXPECT_EQ(Carried(0).result, CarryResult::kSuggested);
  EXPECT_EQ(Trimmed(Carried(0).text), "Fermo");
}

TEST_F(CarryOverTest, FillsNothingThatOvertypesAPlaceholder) {
  Carry({"Nr. \xFE", "Nr. \xFE"}, {"Nr. \xFE", "x"}, {"No. 7", "y"});
  EXPECT_EQ(Carried(0).result, CarryResult::kKept);
  EXPECT_EQ(Carried(1).result, CarryResult::kSuggested);
  EXPECT_EQ(Trimmed(Carried(1).text), "Nr. \xFE");
}

using PretranslateTest = CarryTest;

TEST_F(PretranslateTest, KeepsATranslation) {
  Carry({"Fermo"}, {"Fermo"}, {"Stopped"});
  EXPECT_EQ(Pretranslated("Halted").result, CarryResult::kKept);
  EXPECT_EQ(Trimmed(Pretranslated("Halted").text), "Halted");
}

TEST_F(PretranslateTest, FillsABlankMessage) {
  Carry({"Fermo \xFE"}, {"Fermo \xFE"}, {"Halt  \xFE"});
  for (const char* blank : {"", "      \xFE"}) {
    EXPECT_EQ(Pretranslated(blank).result, CarryResult::kFilled);
    EXPECT_EQ(Trimmed(Pretranslated(blank).text), "Halt  \xFE");
    EXPECT_THAT(Pretranslated(blank).from, Eq(0U));
  }
}

TEST_F(PretranslateTest, FillsAMessageThatReadsLikeTheOriginOrTheReference) {
  Carry({"Fermo"}, {"Stop"}, {"Halt"});
  task_.reference = CarriedTextsFrom({"Stop"});
  EXPECT_EQ(Pretranslated("Fermo").result, CarryResult::kFilled);
  EXPECT_EQ(Pretranslated("Stop").result, CarryResult::kFilled);
  EXPECT_EQ(Trimmed(Pretranslated("Stop").text), "Halt");
}

TEST_F(PretranslateTest, KeepsATextThatIsFound) {
  Carry({"Reset"}, {"Reset"}, {"Reset"});
  EXPECT_EQ(Pretranslated("Reset").result, CarryResult::kKept);
  EXPECT_EQ(Pretranslated("").result, CarryResult::kFilled);
}

TEST_F(PretranslateTest, PutsPlaceholdersWhereABlankWas) {
  Carry({"Nr. \xFE"}, {"Nr. \xFE"}, {"No.  "});
  EXPECT_EQ(Trimmed(Pretranslated("").text), "No. \xFE");
}

TEST_F(PretranslateTest, TakesNoBlankForATranslation) {
  Carry({"Fermo"}, {"Fermo"}, {" "});
  EXPECT_EQ(Pretranslated("Fermo").result, CarryResult::kNone);
  EXPECT_EQ(Trimmed(Pretranslated("Fermo").text), "Fermo");
}

TEST_F(PretranslateTest, LeavesWhatIsOnlySimilar) {
  Carry({"Prova acqua!"}, {"Prova acqua"}, {"Water test"});
  EXPECT_EQ(Pretranslated("").result, CarryResult::kSuggested);
  EXPECT_EQ(Trimmed(Pretranslated("").text), "");
}

TEST_F(PretranslateTest, KeepsMessagesWithoutWords) {
  Carry({"\xFE\xFE"}, {"\xFE\xFE"}, {"ab"});
  EXPECT_EQ(Pretranslated("\xFE\xFE").result, CarryResult::kKept);
}

}  // namespace
}  // namespace vendlingua
