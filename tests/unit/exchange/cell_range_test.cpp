#include "core/exchange/cell_range.h"

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

TEST(CellRange, IsSaidInWordsCountedFrom1) {
  EXPECT_EQ(InWords(std::vector<CellRange>{{8, 1}}), "cell 9");
  EXPECT_EQ(InWords(std::vector<CellRange>{{0, 2}}), "cells 1 to 2");
  EXPECT_EQ(InWords(std::vector<CellRange>{{8, 1}, {10, 6}}), "cells 9 and 11 to 16");
  EXPECT_EQ(InWords(std::vector<CellRange>{{0, 1}, {2, 1}, {4, 3}}), "cells 1, 3 and 5 to 7");
}

}  // namespace
}  // namespace vendlingua
