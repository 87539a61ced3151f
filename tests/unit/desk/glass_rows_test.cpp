#include "core/desk/glass_rows.h"

#include <gtest/gtest.h>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;

class GlassRowsTest : public testing::Test {
 protected:
  GlassRowsTest() {
    set_.CurrentFileType = kMesType;
    set_.phase = Phase::kDestinationOpen;
    set_.LastCol = 3;
    set_.LastMsg = 2;
    set_.OriginText[0] = DisplayText(Codes("UNO"));
    set_.OriginText[1] = DisplayText(Codes("D\xFE\xFE"));
    set_.DestText[0] = DisplayText(Codes("ONE"));
    set_.DestText[1] = DisplayText(Codes("T\xFE\xFE"));
    set_.DestText[2] = DisplayText(Codes("LAST"));
  }

  MessageSet set_;
};

TEST_F(GlassRowsTest, AnEvenMessageStandsAboveTheOddOne) {
  for (const std::size_t message : {0U, 1U}) {
    const GlassRows rows = GlassRowsOf(set_, message);
    EXPECT_EQ(rows.codes[0], Codes("ONE "));
    EXPECT_EQ(rows.codes[1], Codes("T\xFE\xFE "));
    EXPECT_EQ(rows.current, message);
  }
}

TEST_F(GlassRowsTest, TheLastMessageMayHaveNoPartner) {
  const GlassRows rows = GlassRowsOf(set_, 2);
  EXPECT_EQ(rows.codes[0], Codes("LAST"));
  EXPECT_EQ(rows.codes[1], Codes("    "));
}

TEST_F(GlassRowsTest, ShowsTheOriginUntilADestinationIsOpen) {
  set_.phase = Phase::kOriginChosen;
  EXPECT_EQ(GlassRowsOf(set_, 0).codes[0], Codes("UNO "));
}

TEST_F(GlassRowsTest, TheBoardsCellsRunThroughTheDigits) {
  const GlassRows rows = GlassRowsOf(set_, 0);
  EXPECT_TRUE(rows.HasBoardCells());
  EXPECT_EQ(RowAt(rows, 1, 0), Codes("T12 "));
  EXPECT_EQ(RowAt(rows, 1, 8), Codes("T90 "));
  EXPECT_EQ(RowAt(rows, 0, 8), Codes("ONE "));
}

TEST_F(GlassRowsTest, NothingRunsWithoutCellsOfTheBoard) {
  set_.OriginText[1] = DisplayText();
  EXPECT_FALSE(GlassRowsOf(set_, 0).HasBoardCells());
}

}  // namespace
}  // namespace vendlingua
