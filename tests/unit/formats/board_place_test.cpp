#include "core/formats/board_place.h"

#include <gtest/gtest.h>

namespace vendlingua {
namespace {

// A board of two slots of three messages of four cells, of which the last is not used.
MessageSet BoardOfTwoSlots() {
  MessageSet set;
  set.CurrentFileType = kMesType;
  set.LangCount = 2;
  set.LastCol = 3;
  set.LastMsg = 1;
  set.MemStart = 0x1000;
  set.MemLength = 24;
  return set;
}

TEST(PlaceOf, TellsSlotAndMessage) {
  EXPECT_EQ(PlaceOf(BoardOfTwoSlots(), 0x1000), (BoardPlace{0, 0}));
  EXPECT_EQ(PlaceOf(BoardOfTwoSlots(), 0x1007), (BoardPlace{0, 1}));
  EXPECT_EQ(PlaceOf(BoardOfTwoSlots(), 0x1008), (BoardPlace{0, std::nullopt}));
  EXPECT_EQ(PlaceOf(BoardOfTwoSlots(), 0x100C), (BoardPlace{1, 0}));
}

TEST(PlaceOf, IsNowhereOutsideTheMemory) {
  EXPECT_EQ(PlaceOf(BoardOfTwoSlots(), 0x0FFF), BoardPlace());
  EXPECT_EQ(PlaceOf(BoardOfTwoSlots(), 0x1018), BoardPlace());
  MessageSet board = BoardOfTwoSlots();
  board.MemLength = 0;
  EXPECT_EQ(PlaceOf(board, 0x1000), BoardPlace());
}

TEST(PlaceOf, KnowsTheNineSlotsOfAnMsxFile) {
  MessageSet board = BoardOfTwoSlots();
  board.CurrentFileType = kMsxType;
  board.LangCount = 0;
  board.MemLength = 9 * 8;
  EXPECT_EQ(PlaceOf(board, 0x1000 + 8 * 8 + 4), (BoardPlace{8, 1}));
}

TEST(AddressOf, IsTheFirstCellOfAMessage) {
  EXPECT_EQ(AddressOf(BoardOfTwoSlots(), 0, 0), 0x1000U);
  EXPECT_EQ(AddressOf(BoardOfTwoSlots(), 1, 1), 0x1010U);
}

}  // namespace
}  // namespace vendlingua
