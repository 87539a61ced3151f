#include "core/checks/rules/number_missing.h"

#include "unit/checks/check_test.h"

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NumberMissingTest : public test::CheckTest {};

TEST_F(NumberMissingTest, FindsACodeThatIsGone) {
  Add("E12 Vuoto acqua", "E13 No water");
  Add("E12 Vuoto acqua", "No water");
  Add("E12 Vuoto acqua", "e12 No water");
  Add("ED1A Tamb. Ciald", "ED1 Pod drum");
  Add("  Codice T98?  þ", "   98 code?   þ");
  EXPECT_THAT(Found("number-missing"), ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(NumberMissingTest, FindsANumberThatIsGone) {
  Add("E12 Tcaffe<60 °C", "E12 Tcoff.<65 °C");
  Add("Fisso in r. 2", "Fixed in row two");
  Add("Fisso in r. 2", "Fixed in row 22");
  Add("Scegli da 1 a 5", "Select up to 5");
  Add("da 5 a 5", "from 5");
  EXPECT_THAT(Found("number-missing"), ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(NumberMissingTest, FindsAUnitThatIsGone) {
  Add("E12 Tcaffe<60 °C", "E12 Tcoffee < 60");
  Add("E12 Tcaffe<60 °C", "E12 Tcoff.<60 °F");
  Add("Umidita' 5 %", "Humidity 5");
  EXPECT_THAT(Found("number-missing"), ElementsAre(0, 1, 2));
}

TEST_F(NumberMissingTest, TakesNumbersWhereverTheyStand) {
  Add("E12 Tcaffe<60 °C", "60°C>Tcoff. E12");
  Add("Abil. MSG r. 1e2", "Enab.MSG row 1&2");
  Add("Abil. MSG r. 1e2", "Act. MSG r. 1en2");
  Add("Scegli da 1 a 5", "Välj mellan 1-5");
  Add("H2O inf. caffe'þ", "Brüh-H2O Kaffeeþ");
  EXPECT_THAT(Found("number-missing"), IsEmpty());
}

TEST_F(NumberMissingTest, AllowsForNumbersOfTheTranslation) {
  Add("Set zero motori?", "Pôr motores a 0?");
  Add("Umidita'", "Humidity %");
  EXPECT_THAT(Found("number-missing"), IsEmpty());
}

TEST_F(NumberMissingTest, HasNoSayOnABlankText) {
  Add("E12 Vuoto acqua", "");
  EXPECT_THAT(Found("number-missing"), IsEmpty());
}

TEST_F(NumberMissingTest, ReadsTheDegreeSignOfEveryDisplay) {
  display_ = test::kCyrillic;
  Add("60 °C", "60℃");
  Add("E08 acqua", "E08 вода");
  Add("60 °C", "60 C");
  EXPECT_THAT(Found("number-missing"), ElementsAre(2));
}

TEST_F(NumberMissingTest, ReadsTheDegreeSignOfTheKatakanaDisplay) {
  display_ = test::kKatakana;
  AddBytes(
      "60 \xDF"
      "C",
      "60\xDF"
      "C");
  AddBytes(
      "60 \xDF"
      "C",
      "60 C");
  EXPECT_THAT(Found("number-missing"), ElementsAre(1));
}

}  // namespace
}  // namespace vendlingua
