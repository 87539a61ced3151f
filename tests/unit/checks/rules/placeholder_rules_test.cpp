#include "core/checks/rules/placeholder_rules.h"

#include "unit/checks/check_test.h"

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PlaceholderRulesTest : public test::CheckTest {};

TEST_F(PlaceholderRulesTest, FindNothingWherePlaceholdersStandInTheirCells) {
  Add("Credito þ þþþþþþ", "Credit  þ þþþþþþ");
  Add("Attendi", "Please wait");
  EXPECT_THAT(Found("placeholder-lost"), IsEmpty());
  EXPECT_THAT(Found("placeholder-stray"), IsEmpty());
  EXPECT_THAT(Found("placeholder-overtyped"), IsEmpty());
}

TEST_F(PlaceholderRulesTest, FindACellOfTheBoardThatIsBlank) {
  Add("Prezzo       þþþ", "Price         þþ");
  Add("Prezzo       þþþ", "Price        þþþ");
  EXPECT_THAT(Found("placeholder-lost"), ElementsAre(0));
  EXPECT_THAT(Found("placeholder-overtyped"), IsEmpty());
  EXPECT_EQ(Fix("placeholder-lost"), "Price        þþþ");
}

TEST_F(PlaceholderRulesTest, FindAPlaceholderWhereTheBoardWritesNothing) {
  Add("Moneta", "Coin           þ");
  EXPECT_THAT(Found("placeholder-stray"), ElementsAre(0));
  EXPECT_THAT(Found("placeholder-lost"), IsEmpty());
  EXPECT_EQ(Fix("placeholder-stray"), "Coin            ");
}

TEST_F(PlaceholderRulesTest, FindACharacterInACellOfTheBoard) {
  Add("Bev. fredda   þþ", "A very cold one!");
  EXPECT_THAT(Found("placeholder-overtyped"), ElementsAre(0));
  EXPECT_THAT(Found("placeholder-lost"), IsEmpty());
  EXPECT_EQ(Fix("placeholder-overtyped"), "A very cold onþþ");
}

TEST_F(PlaceholderRulesTest, AnyFixPutsAllPlaceholdersToTheirCells) {
  Add("Rev. þ.þ", "Rev. x.  þ");
  for (const char* rule : {"placeholder-lost", "placeholder-stray", "placeholder-overtyped"}) {
    EXPECT_EQ(Fix(rule), "Rev. þ.þ        ") << rule;
  }
}

TEST_F(PlaceholderRulesTest, TheReferenceTellsWhatTheBoardFillsNotTheOrigin) {
  Add("Tempo         þþ", "Time          þþ");
  languages_[1].texts[0] = DisplayText(test::Codes("Tempo"));
  EXPECT_THAT(Found("placeholder-stray"), IsEmpty());
  EXPECT_THAT(Found("placeholder-lost", 1), ElementsAre(0));
}

TEST_F(PlaceholderRulesTest, ABlankTextIsNothingToFindPlaceholdersIn) {
  Add("Prezzo       þþþ", "");
  EXPECT_THAT(Found("placeholder-lost"), IsEmpty());
}

TEST_F(PlaceholderRulesTest, ATextOfPlaceholdersAloneCanLoseThem) {
  Add("þþþþ", "þþ");
  EXPECT_THAT(Found("placeholder-lost"), ElementsAre(0));
}

TEST_F(PlaceholderRulesTest, InAnMsxFileABlankStandsForAPlaceholder) {
  set_.CurrentFileType = kMsxType;
  Add("Prezzo       þþþ", "Price           ");
  Add("Prezzo       þþþ", "Price        þþþ");
  Add("Prezzo       þþþ", "Price for all   ");
  Add("Moneta          ", "Coin           þ");
  EXPECT_THAT(Found("placeholder-lost"), IsEmpty());
  EXPECT_THAT(Found("placeholder-overtyped"), IsEmpty());
  EXPECT_THAT(Found("placeholder-stray"), ElementsAre(3));
}

TEST_F(PlaceholderRulesTest, AFixForAnMsxFileHoldsBlanksForPlaceholders) {
  set_.CurrentFileType = kMsxType;
  Add("Prezzo      þþþ ", "Price for all of");
  EXPECT_THAT(Found("placeholder-overtyped"), ElementsAre(0));
  EXPECT_EQ(Fix("placeholder-overtyped"), "Price for al   f");
}

}  // namespace
}  // namespace vendlingua
