#include "core/formats/copy_header.h"

#include <gtest/gtest.h>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::HexOf;

// The plain sum of "DT0417AB" and eight blanks is 0x2E7; count and address are not in it, and it is
// not complemented.
TEST(CopyHeaderChecksum, IsThePlainLowByteOfTheSumOfTheData) {
  EXPECT_EQ(CopyHeaderChecksum(HexOf("0417AB")), 0xE7);
}

TEST(CopyHeaderChecksum, CountsOnlyTheFixedDataWithoutIdentification) {
  EXPECT_EQ(CopyHeaderChecksum(""), 0x98);
}

TEST(CopyHeaderChecksum, CountsAPairThatIsNotHexadecimalAsZero) {
  EXPECT_EQ(CopyHeaderChecksum("3034GG374142"), 0xB6);
}

TEST(CopyHeader, IsAnS0RecordOfSixteenDataBytes) {
  EXPECT_EQ(CopyHeader("303431374142", "E7"), "S013000044543034313741422020202020202020E7");
}

TEST(IsCopyHeader, KnowsTheHeaderOfAnIdentifiedCopy) {
  EXPECT_TRUE(IsCopyHeader("S013000044543034313741422020202020202020E7"));
}

TEST(IsCopyHeader, TakesAChecksumBelow16WithOneOrTwoDigits) {
  EXPECT_TRUE(IsCopyHeader("S0130000445430343137425A20202020202020200"));
  EXPECT_TRUE(IsCopyHeader("S0130000445430343137425A202020202020202000"));
}

TEST(IsCopyHeader, RefusesTheChecksumThatOtherRecordsCarry) {
  // 0x2E7 plus count 0x13 is 0x2FA, complemented 0x05.
  EXPECT_FALSE(IsCopyHeader("S01300004454303431374142202020202020202005"));
}

TEST(IsCopyHeader, RefusesOtherLines) {
  EXPECT_FALSE(IsCopyHeader(""));
  EXPECT_FALSE(IsCopyHeader("S01300004454"));
  EXPECT_FALSE(IsCopyHeader("S013000044543034313741422020202020202020E"));
  EXPECT_FALSE(IsCopyHeader("S013000044543034313741422020202020202020E7 "));
  EXPECT_FALSE(IsCopyHeader("S013000044443034313741422020202020202020E7"));
  EXPECT_FALSE(IsCopyHeader("S1136000303431374142202020202020202020E7"));
}

}  // namespace
}  // namespace vendlingua
