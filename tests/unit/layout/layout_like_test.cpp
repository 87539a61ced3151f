#include <gmock/gmock.h>

#include <string>

#include "core/layout/text_layout.h"
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

std::string LaidOutLike(const std::string& translation, const std::string& origin) {
  const auto line = LayOutLike(CellsWithPlaceholders(origin), CellsWithPlaceholders(translation));
  if (!line) {
    return "does not fit";
  }
  std::string text = Text(*line);
  for (char& character : text) {
    character = character == '\xFE' ? '#' : character;
  }
  return text;
}

TEST(LayOutLike, KeepsACentredTextCentred) {
  EXPECT_EQ(LaidOutLike("Waste full", "  Troppo pieno  "), "   Waste full   ");
  EXPECT_EQ(LaidOutLike("Overflow!", "  Troppo pieno  "), "   Overflow!    ");
  EXPECT_EQ(LaidOutLike("  Wait", " Attendi  "), "   Wait   ");
}

TEST(LayOutLike, EndsATextAtTheRightEdgeWhereTheOriginDoes) {
  EXPECT_EQ(LaidOutLike("Wait", "   Attendi"), "      Wait");
}

TEST(LayOutLike, BeginsATextWhereTheOriginDoes) {
  EXPECT_EQ(LaidOutLike("   Wait", "Attendi   "), "Wait      ");
  EXPECT_EQ(LaidOutLike("Wait", " Attendi     "), " Wait        ");
  EXPECT_EQ(LaidOutLike("Wait", "AttendiOra"), "Wait      ");
}

TEST(LayOutLike, TakesTheRoomBeforeTheTextWhenItIsNeeded) {
  EXPECT_EQ(LaidOutLike("Out of order!", " Fermo        "), " Out of order!");
  EXPECT_EQ(LaidOutLike("Out of order!!", " Fermo        "), "Out of order!!");
  EXPECT_EQ(LaidOutLike("Out of order!!", "   Fermo      "), "Out of order!!");
}

TEST(LayOutLike, RefusesATextThatIsTooLong) {
  EXPECT_EQ(LaidOutLike("Out of order!!!", " Fermo        "), "does not fit");
}

TEST(LayOutLike, PadsWhatStandsBeforeAPlaceholderToItsColumn) {
  EXPECT_EQ(LaidOutLike("Price ###", "Prezzo   ####"), "Price    ####");
  EXPECT_EQ(LaidOutLike("Price        ###", "Prezzo ###"), "Price  ###");
}

TEST(LayOutLike, KeepsABlankBetweenWordAndPlaceholder) {
  EXPECT_EQ(LaidOutLike("Tariff #", "Prezzo #"), "Tariff #");
  EXPECT_EQ(LaidOutLike("Tariffs #", "Prezzo #"), "does not fit");
  EXPECT_EQ(LaidOutLike("Tariffs#", "Prezzo:#"), "Tariffs#");
  EXPECT_EQ(LaidOutLike("# degrees", "# gradi  "), "# degrees");
  EXPECT_EQ(LaidOutLike("# degrees", "# gradi "), "does not fit");
}

TEST(LayOutLike, BeginsEachPieceWhereThatOfTheOriginDoes) {
  EXPECT_EQ(LaidOutLike("Tray: #", " Piatto: nr. ###"), " Tray:       ###");
  EXPECT_EQ(LaidOutLike("## s", "Tempo ##  sec"), "      ##  s  ");
  EXPECT_EQ(LaidOutLike("Time ## seconds", "Tempo ##   sec  "), "Time  ## seconds");
}

TEST(LayOutLike, SetsPiecesBetweenPlaceholders) {
  EXPECT_EQ(LaidOutLike("at #:# h", "ore ##:##  "), "at  ##:## h");
  EXPECT_EQ(LaidOutLike("at #:# h", "ore ##:## "), "does not fit");
  EXPECT_EQ(LaidOutLike("# of #", "### di ###"), "### of ###");
  EXPECT_EQ(LaidOutLike("# out of #", "### di ###"), "does not fit");
}

TEST(LayOutLike, TakesAPieceWhereTheOriginHasBlanks) {
  EXPECT_EQ(LaidOutLike("# left", "##       "), "## left  ");
  EXPECT_EQ(LaidOutLike("No #", "     ##"), "No   ##");
  EXPECT_EQ(LaidOutLike("# left", "##"), "does not fit");
}

TEST(LayOutLike, RefusesOtherPlaceholderRuns) {
  EXPECT_EQ(LaidOutLike("Price # #", "Prezzo   ##"), "does not fit");
  EXPECT_EQ(LaidOutLike("Price", "Prezzo   ##"), "does not fit");
  EXPECT_EQ(LaidOutLike("Price #", "Prezzo     "), "does not fit");
}

TEST(LayOutLike, KeepsBlanksWithinAPiece) { EXPECT_EQ(LaidOutLike("a  b", "Fermo "), "a  b  "); }

TEST(LayOutLike, TakesTextsWithoutWords) {
  EXPECT_EQ(LaidOutLike("", "Fermo "), "      ");
  EXPECT_EQ(LaidOutLike("##", "Fermo #"), "      #");
  EXPECT_EQ(LaidOutLike("", ""), "");
}

}  // namespace
}  // namespace vendlingua
