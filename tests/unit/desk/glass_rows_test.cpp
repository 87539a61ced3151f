#include "core/desk/glass_rows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>

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
  EXPECT_TRUE(rows.codes[1].empty());
}

TEST_F(GlassRowsTest, ShowsTheOriginUntilADestinationIsOpen) {
  set_.phase = Phase::kOriginChosen;
  EXPECT_EQ(GlassRowsOf(set_, 0).codes[0], Codes("UNO "));
}

TEST_F(GlassRowsTest, TheCellsThatTheBoardFillsAreKnown) {
  EXPECT_TRUE(GlassRowsOf(set_, 0).HasBoardCells());
}

// Its texts hold blanks in those cells.
TEST_F(GlassRowsTest, TheBuiltInTableSaysWhichTheyAreInAMsxFile) {
  set_.CurrentFileType = kMsxType;
  set_.LoadDefaultMessages();
  set_.LastCol = 15;
  std::size_t message = 0;
  while (std::ranges::find(set_.DefaultMessages[message], kPlaceholder) ==
         set_.DefaultMessages[message].end()) {
    ++message;
  }
  set_.LastMsg = static_cast<std::uint16_t>(message);
  const GlassRows rows = GlassRowsOf(set_, message);
  EXPECT_NE(std::ranges::find(rows.codes[message % 2], kPlaceholder),
            rows.codes[message % 2].end());
}

TEST_F(GlassRowsTest, NothingRunsWithoutCellsOfTheBoard) {
  set_.OriginText[1] = DisplayText();
  set_.DestText[1] = DisplayText();
  EXPECT_FALSE(GlassRowsOf(set_, 0).HasBoardCells());
}

}  // namespace
}  // namespace vendlingua
