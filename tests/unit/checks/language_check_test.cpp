#include "core/checks/language_check.h"

#include <algorithm>

#include "unit/checks/check_test.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::Text;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class LanguageCheckTest : public test::CheckTest {
 protected:
  static std::vector<std::string> RulesOf(const std::vector<Finding>& findings) {
    std::vector<std::string> rules;
    for (const Finding& finding : findings) {
      rules.emplace_back(finding.rule);
    }
    return rules;
  }
};

TEST_F(LanguageCheckTest, TellsAllFindingsByMessageAndInTheOrderOfTheRules) {
  Add("E12 Prezzo   þþþ", "Price of       þ");
  Add("Moneta", "Coin");
  Add("Acqua", "");
  const CheckBasis basis = Basis();
  const LanguageCheck check(basis, kChecked, languages_[2].texts, 3);
  const std::vector<Finding> findings = check.Findings();
  ASSERT_THAT(RulesOf(findings), ElementsAre("placeholder-lost", "number-missing", "blank"));
  EXPECT_EQ(findings[1].language, 2);
  EXPECT_EQ(findings[1].message, 0U);
  EXPECT_EQ(Text(findings[1].origin), "E12 Prezzo   \xFE\xFE\xFE");
  EXPECT_EQ(Text(findings[1].text), "Price of       \xFE");
  EXPECT_EQ(findings[2].message, 2U);
}

TEST_F(LanguageCheckTest, LooksAtATextAsItIsWhenAsked) {
  Add("Prezzo       þþþ", "Price        þþþ");
  const CheckBasis basis = Basis();
  MessageTexts edited = languages_[2].texts;
  const LanguageCheck check(basis, kChecked, edited, 1);
  EXPECT_THAT(check.FindingsOf(0), IsEmpty());
  edited[0] = DisplayText(Codes("Price of coffee!"));
  EXPECT_THAT(RulesOf(check.FindingsOf(0)), ElementsAre("placeholder-overtyped"));
  edited[0] = DisplayText(*check.FindingsOf(0).at(0).fix);
  EXPECT_THAT(check.FindingsOf(0), IsEmpty());
}

TEST_F(LanguageCheckTest, MayBeGivenMoreTextsThanMessages) {
  Add("Moneta", "Coin");
  const CheckBasis basis = Basis();
  const MessageTexts texts(kLeastTexts, DisplayText(Codes("Coin")));
  EXPECT_THAT(LanguageCheck(basis, kChecked, texts, 1).Findings(), IsEmpty());
}

TEST_F(LanguageCheckTest, ShowsTheTextsOfAnMsxFileAsTheyAreStored) {
  set_.CurrentFileType = kMsxType;
  Add("Prezzo       þþþ", "Price        5  ");
  const std::vector<Finding> findings = Findings("placeholder-overtyped");
  ASSERT_THAT(findings, SizeIs(1));
  EXPECT_EQ(Text(findings[0].origin), "Prezzo       \xFE\xFE\xFE");
  EXPECT_EQ(Text(findings[0].text), "Price        5  ");
  EXPECT_EQ(Text(*findings[0].fix), "Price           ");
}

TEST_F(LanguageCheckTest, ChecksTheFirst40CellsOfWiderMessages) {
  set_.LastCol = 59;
  Add(std::string(39, ' ') + "þ", std::string(39, ' ') + "x");
  EXPECT_THAT(Found("placeholder-overtyped"), ElementsAre(0));
}

}  // namespace
}  // namespace vendlingua
