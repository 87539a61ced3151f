#include "core/checks/rules/inconsistent.h"

#include "unit/checks/check_test.h"

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class InconsistentTest : public test::CheckTest {};

TEST_F(InconsistentTest, FindsMessagesThatDifferFromTheFirstOfTheirOrigin) {
  Add("Introduci", "Insert");
  Add("Moneta", "Coin");
  Add("Introduci", "Put in");
  Add("Introduci", "Insert");
  EXPECT_THAT(Found("inconsistent"), ElementsAre(2));
  EXPECT_EQ(Findings("inconsistent").at(0).severity, Severity::kNote);
}

TEST_F(InconsistentTest, DoesNotLookAtTheLayoutOnEitherSide) {
  Add("     Bricco     ", "      Jug       ");
  Add("Bricco       þþþ", "Jug          þþþ");
  Add("þ  Bricco       ", "þ  Jug          ");
  EXPECT_THAT(Found("inconsistent"), IsEmpty());
}

TEST_F(InconsistentTest, FindsOtherWordsInAnotherLayout) {
  Add("     Bricco     ", "      Jug       ");
  Add("Bricco       þþþ", "Jar          þþþ");
  EXPECT_THAT(Found("inconsistent"), ElementsAre(1));
}

TEST_F(InconsistentTest, LeavesBlankTextsToTheOtherRule) {
  Add("Introduci", "");
  Add("Introduci", "Insert");
  Add("Moneta", "Coin");
  Add("Moneta", "");
  EXPECT_THAT(Found("inconsistent"), IsEmpty());
}

TEST_F(InconsistentTest, HasNoSayWhereTheOriginIsBlank) {
  Add("", "One");
  Add("þþ", "Two");
  EXPECT_THAT(Found("inconsistent"), IsEmpty());
}

}  // namespace
}  // namespace vendlingua
