#include "core/transfer/layout.h"

#include <gmock/gmock.h>

#include <string>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::Text;

// "#" stands for a placeholder.
DisplayCodes CellsWithPlaceholders(std::string text) {
  for (char& character : text) {
    character = character == '#' ? '\xFE' : character;
  }
  return Codes(text);
}

std::string LaidOut(const std::string& translation, const std::string& origin) {
  const auto line = LayOut(CellsWithPlaceholders(translation), CellsWithPlaceholders(origin));
  if (!line) {
    return "does not fit";
  }
  std::string text = Text(*line);
  for (char& character : text) {
    character = character == '\xFE' ? '#' : character;
  }
  return text;
}

TEST(LayOut, KeepsACentredTextCentred) {
  EXPECT_EQ(LaidOut("Waste full", "  Troppo pieno  "), "   Waste full   ");
  EXPECT_EQ(LaidOut("Overflow!", "  Troppo pieno  "), "   Overflow!    ");
  EXPECT_EQ(LaidOut("  Wait", " Attendi  "), "   Wait   ");
}

TEST(LayOut, EndsATextAtTheRightEdgeWhereTheOriginDoes) {
  EXPECT_EQ(LaidOut("Wait", "   Attendi"), "      Wait");
}

TEST(LayOut, BeginsATextWhereTheOriginDoes) {
  EXPECT_EQ(LaidOut("   Wait", "Attendi   "), "Wait      ");
  EXPECT_EQ(LaidOut("Wait", " Attendi     "), " Wait        ");
  EXPECT_EQ(LaidOut("Wait", "AttendiOra"), "Wait      ");
}

TEST(LayOut, TakesTheRoomBeforeTheTextWhenItIsNeeded) {
  EXPECT_EQ(LaidOut("Out of order!", " Fermo        "), " Out of order!");
  EXPECT_EQ(LaidOut("Out of order!!", " Fermo        "), "Out of order!!");
  EXPECT_EQ(LaidOut("Out of order!!", "   Fermo      "), "Out of order!!");
}

TEST(LayOut, RefusesATextThatIsTooLong) {
  EXPECT_EQ(LaidOut("Out of order!!!", " Fermo        "), "does not fit");
}

TEST(LayOut, PadsWhatStandsBeforeAPlaceholderToItsColumn) {
  EXPECT_EQ(LaidOut("Price ###", "Prezzo   ####"), "Price    ####");
  EXPECT_EQ(LaidOut("Price        ###", "Prezzo ###"), "Price  ###");
}

TEST(LayOut, KeepsABlankBetweenWordAndPlaceholder) {
  EXPECT_EQ(LaidOut("Tariff #", "Prezzo #"), "Tariff #");
  EXPECT_EQ(LaidOut("Tariffs #", "Prezzo #"), "does not fit");
  EXPECT_EQ(LaidOut("Tariffs#", "Prezzo:#"), "Tariffs#");
  EXPECT_EQ(LaidOut("# degrees", "# gradi  "), "# degrees");
  EXPECT_EQ(LaidOut("# degrees", "# gradi "), "does not fit");
}

TEST(LayOut, BeginsEachPieceWhereThatOfTheOriginDoes) {
  EXPECT_EQ(LaidOut("Tray: #", " Piatto: nr. ###"), " Tray:       ###");
  EXPECT_EQ(LaidOut("## s", "Tempo ##  sec"), "      ##  s  ");
  EXPECT_EQ(LaidOut("Time ## seconds", "Tempo ##   sec  "), "Time  ## seconds");
}

TEST(LayOut, SetsPiecesBetweenPlaceholders) {
  EXPECT_EQ(LaidOut("at #:# h", "ore ##:##  "), "at  ##:## h");
  EXPECT_EQ(LaidOut("at #:# h", "ore ##:## "), "does not fit");
  EXPECT_EQ(LaidOut("# of #", "### di ###"), "### of ###");
  EXPECT_EQ(LaidOut("# out of #", "### di ###"), "does not fit");
}

TEST(LayOut, TakesAPieceWhereTheOriginHasBlanks) {
  EXPECT_EQ(LaidOut("# left", "##       "), "## left  ");
  EXPECT_EQ(LaidOut("No #", "     ##"), "No   ##");
  EXPECT_EQ(LaidOut("# left", "##"), "does not fit");
}

TEST(LayOut, RefusesOtherPlaceholderRuns) {
  EXPECT_EQ(LaidOut("Price # #", "Prezzo   ##"), "does not fit");
  EXPECT_EQ(LaidOut("Price", "Prezzo   ##"), "does not fit");
  EXPECT_EQ(LaidOut("Price #", "Prezzo     "), "does not fit");
}

TEST(LayOut, KeepsBlanksWithinAPiece) { EXPECT_EQ(LaidOut("a  b", "Fermo "), "a  b  "); }

TEST(LayOut, TakesTextsWithoutWords) {
  EXPECT_EQ(LaidOut("", "Fermo "), "      ");
  EXPECT_EQ(LaidOut("##", "Fermo #"), "      #");
  EXPECT_EQ(LaidOut("", ""), "");
}

}  // namespace
}  // namespace vendlingua
