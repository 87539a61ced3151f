#include "core/formats/mes_layout.h"

#include <gtest/gtest.h>

#include "core/platform/errors.h"

namespace vendlingua {
namespace {

// Messages of four cells, four slots a language: blocks of 20 + 4 x 4 bytes.
MessageSet SmallSet() {
  MessageSet set;
  set.LastCol = 3;
  set.LangStride = 3;
  set.BlockLength = 36;
  return set;
}

TEST(MesBlockOffset, StandsBehindHeaderAndEarlierBlocks) {
  const MessageSet set = SmallSet();
  EXPECT_EQ(MesBlockOffset(set, 0), 24);
  EXPECT_EQ(MesBlockOffset(set, 1), 24 + 36);
  EXPECT_EQ(MesBlockOffset(set, 101), 24 + 101 * 36);
}

TEST(MesBlockOffset, IsAnErrorBeforeTheStartOfTheFile) {
  MessageSet set;
  set.BlockLength = -8;
  EXPECT_EQ(MesBlockOffset(set, 3), 0);
  EXPECT_THROW(MesBlockOffset(set, 4), Error);
}

TEST(MesMessageOffset, StandsBehindTheNameAndEarlierMessages) {
  EXPECT_EQ(MesMessageOffset(SmallSet(), 0, 0), 44);
  EXPECT_EQ(MesMessageOffset(SmallSet(), 1, 2), 60 + 20 + 8);
}

TEST(MesBlocksOverlap, WhenABlockIsShorterThanItsNameAndSlots) {
  MessageSet set = SmallSet();
  set.BlockLength = 37;
  EXPECT_FALSE(MesBlocksOverlap(set));
  set.BlockLength = 36;
  EXPECT_FALSE(MesBlocksOverlap(set));
  set.BlockLength = 35;
  EXPECT_TRUE(MesBlocksOverlap(set));
}

TEST(MesBlocksOverlap, WhenTheLengthWraps) {
  MessageSet set;
  set.LastCol = 15;
  const auto overlap = [&set](std::uint16_t slots) {
    set.LangStride = static_cast<std::uint16_t>(slots - 1);
    set.BlockLength = MesBlockLength(set.LastCol, set.LangStride);
    return MesBlocksOverlap(set);
  };
  EXPECT_FALSE(overlap(455));
  EXPECT_FALSE(overlap(2046));  // 16 x 2046 + 20 are 32756 bytes
  EXPECT_TRUE(overlap(2047));   // 32772
  EXPECT_TRUE(overlap(4096));   // 65556, which wraps to 20
  EXPECT_TRUE(overlap(4609));   // 73764, which wraps to 8228
}

}  // namespace
}  // namespace vendlingua
