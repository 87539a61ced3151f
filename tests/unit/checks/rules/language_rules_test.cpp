#include "core/checks/rules/language_rules.h"

#include "unit/checks/check_test.h"

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class LanguageNameTest : public test::CheckTest {
 protected:
  LanguageNameTest() { set_.HeaderCount = 1; }
};

TEST_F(LanguageNameTest, OfItsOwnIsRight) {
  Add("Allarme", "Alarm");
  Add("Italiano", "English");
  EXPECT_THAT(Found("language-name"), IsEmpty());
  EXPECT_THAT(Found("language-name", 1), IsEmpty());
}

TEST_F(LanguageNameTest, MustNotBeShownTwice) {
  Add("Allarme", "Alarm");
  Add("    Italiano    ", "Italiano");
  EXPECT_THAT(Found("language-name"), ElementsAre(1));
  EXPECT_THAT(Found("language-name", 1), IsEmpty());
}

TEST_F(LanguageNameTest, MustBeShown) {
  Add("Allarme", "Alarm");
  Add("Italiano", "");
  EXPECT_THAT(Found("language-name"), ElementsAre(1));
}

TEST_F(LanguageNameTest, MustBeListed) {
  Add("Allarme", "Alarm");
  Add("Italiano", "English");
  set_.language_names[2] = "";
  EXPECT_THAT(Found("language-name"), ElementsAre(1));
}

TEST_F(LanguageNameTest, MustNotBeListedTwiceInWhateverCase) {
  Add("Allarme", "Alarm");
  Add("Italiano", "English");
  set_.language_names[2] = "italiano";
  EXPECT_THAT(Found("language-name"), ElementsAre(1));
}

TEST_F(LanguageNameTest, IsLookedForInTheFirstMessageOfAFileWithoutANameMessage) {
  set_.HeaderCount = 2;
  Add("Allarme", "Alarm");
  Add("Italiano", "Italiano");
  EXPECT_THAT(Found("language-name"), IsEmpty());
  set_.language_names[2] = "";
  EXPECT_THAT(Found("language-name"), ElementsAre(0));
}

TEST_F(LanguageNameTest, OfANewLanguageIsTheOneThatItShows) {
  Add("Allarme", "Alarm");
  Add("Italiano", "English");
  const CheckBasis basis = Basis();
  MessageTexts texts(2, DisplayText(test::Codes("Deutsch")));
  const LanguageCheck check(basis, kNewLanguage, texts, 2, ChosenRules({"language-name"}, {}));
  EXPECT_THAT(check.FindingsOf(1), IsEmpty());
  texts[1] = DisplayText(test::Codes("English"));
  EXPECT_THAT(check.FindingsOf(1), SizeIs(1));
}

class ShortBlockTest : public test::CheckTest {};

TEST_F(ShortBlockTest, IsFoundAtTheFirstMessageThatIsMissing) {
  Add("Allarme", "Alarm");
  Add("Moneta", "");
  Add("Lingua", "");
  EXPECT_THAT(Found("short-block"), IsEmpty());
  languages_[2].held = 1;
  EXPECT_THAT(Found("short-block"), ElementsAre(1));
  EXPECT_EQ(Findings("short-block").at(0).severity, Severity::kError);
}

TEST_F(ShortBlockTest, LeavesNothingToTheOtherRulesFromThereOn) {
  Add("Allarme", "");
  Add("Moneta", "");
  languages_[2].held = 1;
  EXPECT_THAT(Found("blank"), ElementsAre(0));
}

}  // namespace
}  // namespace vendlingua
