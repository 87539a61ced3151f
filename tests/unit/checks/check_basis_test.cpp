#include "core/checks/check_basis.h"

#include "unit/checks/check_test.h"

namespace vendlingua {
namespace {

using test::Text;

class CheckBasisTest : public test::CheckTest {};

TEST_F(CheckBasisTest, TheUsualOriginIsTheFirmwaresOwnLanguage) {
  EXPECT_EQ(UsualOrigin(set_), 1);
  set_.language_names = {"Default"};
  EXPECT_EQ(UsualOrigin(set_), 0);
}

TEST_F(CheckBasisTest, TheUsualOriginOfAnMsxFileIsTheBuiltInTable) {
  set_.CurrentFileType = kMsxType;
  EXPECT_EQ(UsualOrigin(set_), 0);
}

TEST_F(CheckBasisTest, AnOriginOfAnMsxFileGetsItsPlaceholdersToo) {
  set_.CurrentFileType = kMsxType;
  Add("Prezzo       þþþ", "Price           ");
  languages_[1].texts[0] = DisplayText(test::Codes("Prezzo"));
  EXPECT_EQ(Text(Basis().Origin(0).First(16)), "Prezzo       \xFE\xFE\xFE");
}

TEST_F(CheckBasisTest, FindsTheFirstMessageOfTheSameWords) {
  Add("Moneta", "");
  Add("Acqua", "");
  Add("  Acqua  þ", "");
  const CheckBasis basis = Basis();
  EXPECT_EQ(basis.FirstOfSameWords(0), 0U);
  EXPECT_EQ(basis.FirstOfSameWords(1), 1U);
  EXPECT_EQ(basis.FirstOfSameWords(2), 1U);
}

TEST_F(CheckBasisTest, KnowsTheNamesOfTheLanguages) {
  set_.HeaderCount = 1;
  set_.language_names[2] = "Fran\u00E7ais";
  Add("Allarme", "Alarme");
  Add("   Italiano   ", "  Français");
  const CheckBasis basis = Basis();
  EXPECT_EQ(basis.name_message(), 1U);
  EXPECT_EQ(basis.names().at(2).listed, "FRAN\u00C7AIS");
  EXPECT_EQ(Text(basis.names().at(1).shown), "Italiano");
  EXPECT_EQ(Text(basis.names().at(2).shown),
            "Fran\xE7"
            "ais");
}

TEST_F(CheckBasisTest, HasNoNameMessageBehindTheLastOne) {
  set_.HeaderCount = 1;
  Add("Allarme", "Alarm");
  EXPECT_EQ(Basis().name_message(), std::nullopt);
}

}  // namespace
}  // namespace vendlingua
