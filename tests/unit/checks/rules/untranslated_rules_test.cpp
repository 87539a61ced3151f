#include "core/checks/rules/untranslated_rules.h"

#include "unit/checks/check_test.h"

namespace vendlingua {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

class BlankTest : public test::CheckTest {};

TEST_F(BlankTest, IsFoundWhereTheOriginSaysSomething) {
  Add("Allarme", "");
  Add("Allarme", "Alarm");
  Add("", "");
  EXPECT_THAT(Found("blank"), ElementsAre(0));
  EXPECT_EQ(Findings("blank").at(0).severity, Severity::kError);
}

TEST_F(BlankTest, IsATextOfPlaceholdersAlone) {
  Add("þþþZucchero", "þþþ");
  Add("þþþ", "þþþ");
  EXPECT_THAT(Found("blank"), ElementsAre(0));
}

TEST_F(BlankTest, IsATextOfCodesThatDrawNothing) {
  AddBytes("Allarme", std::string(16, '\0'));
  AddBytes("Allarme", "\xA0\xA0\xA0");
  EXPECT_THAT(Found("blank"), ElementsAre(0, 1));
}

class SameAsOriginTest : public test::CheckTest {
 protected:
  /// So many translated messages that the language is not an unfinished one.
  void AddTranslated() {
    for (int i = 0; i < 20; ++i) {
      Add("Temperatura", "Temperature");
    }
  }
};

TEST_F(SameAsOriginTest, IsANoteOnOneMessageAmongMany) {
  AddTranslated();
  Add("Allarme", "Allarme");
  EXPECT_THAT(Found("same-as-origin"), ElementsAre(20));
  EXPECT_EQ(Findings("same-as-origin").at(0).severity, Severity::kNote);
}

TEST_F(SameAsOriginTest, IsAWarningInALanguageThatIsFullOfIt) {
  AddTranslated();
  Add("Allarme", "Allarme");
  Add("Telemetria", "Telemetria");
  EXPECT_THAT(Findings("same-as-origin"), Each(Field(&Finding::severity, Severity::kNote)));
  Add("Manutenzione", "Manutenzione");
  EXPECT_THAT(Findings("same-as-origin"), Each(Field(&Finding::severity, Severity::kWarning)));
  EXPECT_THAT(Found("same-as-origin"), ElementsAre(20, 21, 22));
}

TEST_F(SameAsOriginTest, DoesNotDependOnTheLayout) {
  Add("    Allarme     ", "Allarme");
  Add("Prezzo       þþþ", "Prezzo  þþ      ");
  EXPECT_THAT(Found("same-as-origin"), ElementsAre(0, 1));
}

TEST_F(SameAsOriginTest, NeedsAWordOfFourLetters) {
  Add("Rev. þ.þ", "Rev. þ.þ");
  Add("MDB NTC T98 1=NO", "MDB NTC T98 1=NO");
  Add("  439 ", "  439 ");
  Add("", "");
  EXPECT_THAT(Found("same-as-origin"), IsEmpty());
}

TEST_F(SameAsOriginTest, IsRightInTheOriginAndInAnotherCopyOfIt) {
  Add("Allarme", "Allarme");
  EXPECT_THAT(Found("same-as-origin", 1), IsEmpty());
  set_.language_names[2] = "Italiano";
  EXPECT_THAT(Found("same-as-origin"), IsEmpty());
}

TEST_F(SameAsOriginTest, OffersNoFix) {
  Add("Allarme", "Allarme");
  EXPECT_EQ(Fix("same-as-origin"), "none");
}

}  // namespace
}  // namespace vendlingua
