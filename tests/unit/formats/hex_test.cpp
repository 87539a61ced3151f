#include "core/formats/hex.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <optional>
#include <string>

namespace vendlingua {
namespace {

TEST(ParseHex, ReadsDigitsOfEitherCase) {
  EXPECT_EQ(ParseHex("0"), 0U);
  EXPECT_EQ(ParseHex("01C6"), 454U);
  EXPECT_EQ(ParseHex("abcdef"), 0xABCDEFU);
  EXPECT_EQ(ParseHex("aBcDeF"), 0xABCDEFU);
}

TEST(ParseHex, ReadsEightDigitsUnsigned) {
  EXPECT_EQ(ParseHex("FFFFFFFF"), 4294967295U);
  EXPECT_EQ(ParseHex("80000000"), 2147483648U);
}

TEST(ParseHex, TakesNothingElse) {
  for (const char* text : {"", "G", "/", ":", "@", "`", "g", " 1", "1 ", "+1", "-1", "0x1", "&H1",
                           "1\n", "\xE8", "123456789"}) {
    EXPECT_EQ(ParseHex(text), std::nullopt) << text;
  }
}

TEST(HexOrZero, ReadsWhatIsNotHexadecimalAsZero) {
  EXPECT_EQ(HexOrZero("1F"), 31U);
  EXPECT_EQ(HexOrZero("1G"), 0U);
  EXPECT_EQ(HexOrZero(""), 0U);
}

TEST(HexField, IsUpperCaseAndPaddedWithZeros) {
  EXPECT_EQ(HexField(0xAB, 4), "00AB");
  EXPECT_EQ(HexField(0, 2), "00");
  EXPECT_EQ(HexField(0xFF0000, 8), "00FF0000");
}

TEST(HexField, LosesTheHighDigitsOfAValueThatIsTooWide) {
  EXPECT_EQ(HexField(0x12345, 4), "2345");
  EXPECT_EQ(HexField(0x10000, 4), "0000");
}

TEST(HexField, WritesANegativeNumberAsItsTwosComplement) {
  EXPECT_EQ(HexField(static_cast<std::uint64_t>(std::int64_t{-1}), 4), "FFFF");
  EXPECT_EQ(HexField(static_cast<std::uint64_t>(std::int64_t{-2}), 4), "FFFE");
}

TEST(Hex, HasNoPadding) {
  EXPECT_EQ(Hex(0), "0");
  EXPECT_EQ(Hex(0xF), "F");
  EXPECT_EQ(Hex(0x10), "10");
  EXPECT_EQ(Hex(0xFFFFFFFFFFFFFFFF), "FFFFFFFFFFFFFFFF");
}

TEST(Hex, HasAtLeastTheDigitsAskedFor) {
  EXPECT_EQ(Hex(0xF, 4), "000F");
  EXPECT_EQ(Hex(0x12345, 4), "12345");
}

TEST(AppendHexByte, AlwaysAppendsTwoUpperCaseDigits) {
  std::string text = "S2";
  AppendHexByte(text, 0x05);
  AppendHexByte(text, 0xFE);
  EXPECT_EQ(text, "S205FE");
}

TEST(HexPairValue, IsAByteForDigitsOfEitherCaseOnly) {
  EXPECT_EQ(HexPairValue('0', '0'), 0U);
  EXPECT_EQ(HexPairValue('f', 'F'), 0xFFU);
  EXPECT_EQ(HexPairValue('a', '9'), 0xA9U);
  for (const char other : {'G', 'g', ' ', '/', ':', '@', '`', '\0', '\xFF'}) {
    EXPECT_GT(HexPairValue(other, 'F'), kLastByte);
    EXPECT_GT(HexPairValue('F', other), kLastByte);
    EXPECT_GT(HexPairValue('0', other), kLastByte);
  }
}

TEST(DecodeHexPairs, DecodesPairsOfEitherCase) {
  const DecodedHex decoded = DecodeHexPairs("00fFa9");
  EXPECT_THAT(decoded.bytes, testing::ElementsAre(0x00, 0xFF, 0xA9));
  EXPECT_EQ(decoded.rest, "");
  EXPECT_THAT(DecodeHexPairs("").bytes, testing::IsEmpty());
}

TEST(DecodeHexPairs, EndsBeforeThePairThatIsNone) {
  const DecodedHex decoded = DecodeHexPairs("41424G43");
  EXPECT_THAT(decoded.bytes, testing::ElementsAre(0x41, 0x42));
  EXPECT_EQ(decoded.rest, "4G43");
  EXPECT_EQ(DecodeHexPairs("G1").rest, "G1");
  EXPECT_EQ(DecodeHexPairs("414").rest, "4");
}

TEST(HexPairOrZero, CountsColumnsFromOne) {
  EXPECT_EQ(HexPairOrZero("S214FF", 3), 0x14);
  EXPECT_EQ(HexPairOrZero("S214FF", 5), 0xFF);
}

TEST(HexPairOrZero, IsZeroForWhatIsNoPair) {
  EXPECT_EQ(HexPairOrZero("1G", 1), 0);
  EXPECT_EQ(HexPairOrZero("G1", 1), 0);
  EXPECT_EQ(HexPairOrZero("12", 3), 0);
  EXPECT_EQ(HexPairOrZero("12", 9), 0);
}

TEST(HexPairOrZero, IsTheOneDigitWhereTheTextEndsBehindIt) {
  EXPECT_EQ(HexPairOrZero("12A", 3), 0xA);
  EXPECT_EQ(HexPairOrZero("12G", 3), 0);
}

TEST(Columns, CountFromOne) {
  EXPECT_EQ(Columns("S214FF8000", 1, 2), "S2");
  EXPECT_EQ(Columns("S214FF8000", 5, 6), "FF8000");
}

TEST(Columns, EndWithTheText) {
  EXPECT_EQ(Columns("ABC", 2, 5), "BC");
  EXPECT_EQ(Columns("ABC", 3, 1), "C");
  EXPECT_EQ(Columns("ABC", 4, 1), "");
  EXPECT_EQ(Columns("ABC", 99, 1), "");
}

TEST(AddressText, TellsAnAddressBothWays) {
  EXPECT_EQ(AddressText(0), "0x0 (0)");
  EXPECT_EQ(AddressText(0xFF0000), "0xFF0000 (16711680)");
}

}  // namespace
}  // namespace vendlingua
