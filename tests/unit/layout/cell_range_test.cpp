#include "core/layout/cell_range.h"

#include <gmock/gmock.h>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(CellRange, PlaceholdersAreTakenTogetherWhereTheyAreNeighbours) {
  EXPECT_THAT(PlaceholdersOf(Codes("\xFE"
                                   "a\xFE\xFE")),
              ElementsAre(CellRange{0, 1}, CellRange{2, 2}));
  EXPECT_THAT(PlaceholdersOf(Codes("abc")), IsEmpty());
  EXPECT_THAT(PlaceholdersOf({}), IsEmpty());
}

TEST(CellRange, FieldsAreWhatPlaceholdersLeave) {
  const std::vector<CellRange> board = {{8, 1}, {10, 6}};
  EXPECT_THAT(FieldsBetween(board, 20),
              ElementsAre(CellRange{0, 8}, CellRange{9, 1}, CellRange{16, 4}));
  EXPECT_THAT(FieldsBetween(board, 16),
              ElementsAre(CellRange{0, 8}, CellRange{9, 1}, CellRange{16, 0}));
  EXPECT_THAT(FieldsBetween({}, 16), ElementsAre(CellRange{0, 16}));
}

TEST(CellRange, IsSaidInWordsCountedFrom1) {
  EXPECT_EQ(InWords(std::vector<CellRange>{{8, 1}}), "cell 9");
  EXPECT_EQ(InWords(std::vector<CellRange>{{0, 2}}), "cells 1 to 2");
  EXPECT_EQ(InWords(std::vector<CellRange>{{8, 1}, {10, 6}}), "cells 9 and 11 to 16");
  EXPECT_EQ(InWords(std::vector<CellRange>{{0, 1}, {2, 1}, {4, 3}}), "cells 1, 3 and 5 to 7");
}

}  // namespace
}  // namespace vendlingua
