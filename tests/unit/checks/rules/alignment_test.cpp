#include "core/checks/rules/alignment.h"

#include "unit/checks/check_test.h"

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AlignmentTest : public test::CheckTest {};

TEST_F(AlignmentTest, CentresWhatIsCentredInTheOrigin) {
  Add("    Attendi     ", "Wait            ");
  EXPECT_THAT(Found("alignment"), ElementsAre(0));
  EXPECT_EQ(Findings("alignment").at(0).severity, Severity::kWarning);
  EXPECT_EQ(Fix("alignment"), "      Wait      ");
}

TEST_F(AlignmentTest, PutsToTheLeftWhatStandsThereInTheOrigin) {
  Add("Tempi e soglie  ", "     Times      ");
  EXPECT_EQ(Fix("alignment"), "Times           ");
}

TEST_F(AlignmentTest, PutsToTheRightWhatStandsThereInTheOrigin) {
  Add("           Avvio", "Start           ");
  EXPECT_EQ(Fix("alignment"), "           Start");
}

TEST_F(AlignmentTest, AFixKeepsPlaceholdersInTheirCells) {
  Add("    Caldaia   þþ", "Boiler        þþ");
  EXPECT_EQ(Fix("alignment"), "    Boiler    þþ");
}

TEST_F(AlignmentTest, AnIndentIsNoWayToStand) {
  Add("    Attendi     ", "  Wait          ");
  EXPECT_THAT(Found("alignment"), ElementsAre(0));
}

TEST_F(AlignmentTest, ABlankMoreOnOneSideIsCentred) {
  Add("    Attendi     ", "     Wait       ");
  Add("    Attendi     ", "      Waits     ");
  EXPECT_THAT(Found("alignment"), ElementsAre(0));
}

TEST_F(AlignmentTest, WordsThatLeaveLittleRoomStandEveryWay) {
  Add("    Attendi     ", "Please wait now ");
  Add("Prezzi scontati ", "   Discounts    ");
  Add("l'importo esatto", "the amount      ");
  EXPECT_THAT(Found("alignment"), IsEmpty());
}

TEST_F(AlignmentTest, AnOriginWithAnIndentOfItsOwnIsNoModel) {
  Add("  Moneta        ", "Coin            ");
  EXPECT_THAT(Found("alignment"), IsEmpty());
}

TEST_F(AlignmentTest, WordsInSeveralFieldsHaveTheirOwnPlaces) {
  Add("Tubo  þþ  Cialda", "Tube  þþ  Pod   ");
  Add("Nr. þ  Ev.   þþþ", "Nr. þ  MV    þþþ");
  EXPECT_THAT(Found("alignment"), IsEmpty());
}

TEST_F(AlignmentTest, LeavesWrongPlaceholdersToTheOtherRules) {
  Add("    Caldaia   þþ", "Boiler      þþ  ");
  Add("    Caldaia   þþ", "Boiler          ");
  EXPECT_THAT(Found("alignment"), IsEmpty());
}

TEST_F(AlignmentTest, HasNoSayOnABlankText) {
  Add("    Attendi     ", "");
  EXPECT_THAT(Found("alignment"), IsEmpty());
}

TEST_F(AlignmentTest, KnowsTheFieldsOfAnMsxFile) {
  set_.CurrentFileType = kMsxType;
  Add("    Caldaia   þþ", "    Boiler      ");
  Add("    Caldaia   þþ", "     Boiler     ");
  Add("    Caldaia   þþ", "      Boiler    ");
  EXPECT_THAT(Found("alignment"), ElementsAre(1, 2));
  EXPECT_EQ(test::Text(*Findings("alignment").at(0).fix), "    Boiler      ");
}

}  // namespace
}  // namespace vendlingua
