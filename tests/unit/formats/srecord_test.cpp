#include "core/formats/srecord.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <numeric>
#include <string>
#include <string_view>
#include <vector>

namespace vendlingua {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

using Bytes = std::vector<std::uint8_t>;

Bytes Counting(std::size_t size) {
  Bytes bytes(size);
  std::iota(bytes.begin(), bytes.end(), std::uint8_t{0});
  return bytes;
}

SRecord Parsed(std::string_view line) {
  SRecord record;
  ParseSRecord(line, record);
  return record;
}

std::string ReasonAgainstRecord(std::string_view line) {
  try {
    Parsed(line);
  } catch (const SRecordSyntaxError& error) {
    return error.what();
  }
  return "none";
}

TEST(SRecordTypeFor, GoesByTheStartAlone) {
  EXPECT_EQ(SRecordTypeFor(0), SRecordType::kS1);
  EXPECT_EQ(SRecordTypeFor(0xFFFF), SRecordType::kS1);
  EXPECT_EQ(SRecordTypeFor(0x10000), SRecordType::kS2);
  EXPECT_EQ(SRecordTypeFor(0xFF8000), SRecordType::kS2);
}

TEST(SRecordChecksum, IsTheOnesComplementOfTheLowByte) {
  EXPECT_EQ(SRecordChecksum(0), 0xFF);
  EXPECT_EQ(SRecordChecksum(0xFF), 0x00);
  EXPECT_EQ(SRecordChecksum(0x5A3), 0x5C);
}

TEST(SumOfHexPairs, TakesAPairThatIsNotHexadecimalAsZero) {
  EXPECT_EQ(SumOfHexPairs("14FF8000"), 0x14U + 0xFFU + 0x80U);
  EXPECT_EQ(SumOfHexPairs("14ZZ80"), 0x14U + 0x80U);
  EXPECT_EQ(SumOfHexPairs(""), 0U);
}

TEST(FormatSRecords, WritesSixteenBytesALineAndAShorterLastOne) {
  EXPECT_EQ(FormatSRecords(Counting(20), 0xFF8000, SRecordType::kS2),
            "S214FF8000000102030405060708090A0B0C0D0E0FF4\r\n"
            "S208FF80101011121322\r\n");
}

TEST(FormatSRecords, WritesNoShorterLastLineWithoutNeed) {
  EXPECT_EQ(FormatSRecords(Counting(16), 0xFF8000, SRecordType::kS2),
            "S214FF8000000102030405060708090A0B0C0D0E0FF4\r\n");
}

TEST(FormatSRecords, WritesNothingForAnEmptyImage) {
  EXPECT_EQ(FormatSRecords({}, 0x6000, SRecordType::kS1), "");
}

TEST(FormatSRecords, WritesTwoAddressBytesInS1Lines) {
  EXPECT_EQ(FormatSRecords(Bytes(16, 'A'), 0x6000, SRecordType::kS1),
            "S1136000414141414141414141414141414141417C\r\n");
}

TEST(FormatSRecords, GivesAnS1FileThatPassesFFFFFiveDigits) {
  EXPECT_EQ(FormatSRecords(Bytes(32, 0), 0xFFF8, SRecordType::kS1),
            "S113FFF800000000000000000000000000000000F5\r\n"
            "S1131000800000000000000000000000000000000D4\r\n");
}

// The checksum reads the address back from its digits, pair by pair from both ends; pairs of a
// short address overlap.
TEST(FormatSRecords, WritesShortAddressesAsTheyCome) {
  EXPECT_EQ(FormatSRecords(Bytes{1, 2}, 0x5, SRecordType::kS1), "S10550102ED\r\n");
  EXPECT_EQ(FormatSRecords(Bytes{1, 2}, 0x15, SRecordType::kS1), "S105150102CD\r\n");
  EXPECT_EQ(FormatSRecords(Bytes{1, 2}, 0x105, SRecordType::kS1), "S1051050102E2\r\n");
  EXPECT_EQ(FormatSRecords(Bytes{0xAA}, 0x12345, SRecordType::kS2), "S20512345AAC5\r\n");
}

TEST(FormatSRecords, PadsAddressesWhenItIsAskedTo) {
  EXPECT_EQ(FormatSRecords(Bytes{1, 2}, 0x105, SRecordType::kS1, 4), "S10501050102F1\r\n");
}

TEST(FormatSRecords, CountsAddressesBeyondThirtyTwoBits) {
  const std::string lines = FormatSRecords(Bytes(17, 0), 0xFFFFFFF8, SRecordType::kS2);
  EXPECT_THAT(lines, HasSubstr("\r\nS20510000000800"));
}

TEST(ParseSRecord, DecodesTheLine) {
  const SRecord record = Parsed("S208FF80101011121322");
  EXPECT_EQ(record.type, '2');
  EXPECT_EQ(record.address, 0xFF8010U);
  EXPECT_THAT(record.Data(), ElementsAre(0x10, 0x11, 0x12, 0x13));
  EXPECT_TRUE(record.ChecksumIsRight());
}

TEST(ParseSRecord, KnowsTheAddressLengthOfEveryType) {
  EXPECT_EQ(Parsed("S0031234B6").address, 0x1234U);
  EXPECT_EQ(Parsed("S1031234B6").address, 0x1234U);
  EXPECT_EQ(Parsed("S2041234565F").address, 0x123456U);
  EXPECT_EQ(Parsed("S30512345678E6").address, 0x12345678U);
  EXPECT_EQ(Parsed("S5031234B6").address, 0x1234U);
  EXPECT_EQ(Parsed("S6041234565F").address, 0x123456U);
  EXPECT_EQ(Parsed("S70512345678E6").address, 0x12345678U);
  EXPECT_EQ(Parsed("S8041234565F").address, 0x123456U);
  EXPECT_EQ(Parsed("S9031234B6").address, 0x1234U);
}

TEST(ParseSRecord, VerifiesTheChecksumOfEveryAddressLength) {
  EXPECT_TRUE(Parsed("S1031234B6").ChecksumIsRight());
  EXPECT_TRUE(Parsed("S2041234565F").ChecksumIsRight());
  EXPECT_TRUE(Parsed("S30512345678E6").ChecksumIsRight());
}

TEST(ParseSRecord, TakesAWrongChecksumAndSaysSo) {
  const SRecord record = Parsed("S1031234B7");
  EXPECT_EQ(record.checksum, 0xB7);
  EXPECT_FALSE(record.ChecksumIsRight());
}

TEST(ParseSRecord, TakesLowerCaseDigits) {
  EXPECT_EQ(Parsed("S208ff80101011121322").address, 0xFF8010U);
}

TEST(ParseSRecord, TakesTheLongestRecord) {
  const SRecord record = Parsed("S1FF0000" + std::string(504, '0') + "00");
  EXPECT_EQ(record.size, 252U);
  EXPECT_TRUE(record.ChecksumIsRight());
}

TEST(ParseSRecord, ForgetsTheRecordBefore) {
  SRecord record = Parsed("S208FF80101011121322");
  ParseSRecord("S1031234B6", record);
  EXPECT_EQ(record.size, 0U);
  EXPECT_EQ(record.address, 0x1234U);
  EXPECT_TRUE(record.ChecksumIsRight());
}

TEST(ParseSRecord, RefusesWhatIsNoRecord) {
  for (const char* line : {"", "S", "s1031234B6", "T1031234B6", "SA031234B6", " S1031234B6"}) {
    EXPECT_THAT(ReasonAgainstRecord(line), HasSubstr("does not begin")) << line;
  }
}

TEST(ParseSRecord, RefusesAnS4Record) {
  EXPECT_THAT(ReasonAgainstRecord("S4031234B6"), HasSubstr("S4"));
}

TEST(ParseSRecord, RefusesAnotherLengthThanTheCount) {
  EXPECT_THAT(ReasonAgainstRecord("S1041234B6"),
              HasSubstr("count is 4, but the line holds 3 bytes"));
  EXPECT_THAT(ReasonAgainstRecord("S1021234B6"), HasSubstr("count is 2"));
  EXPECT_THAT(ReasonAgainstRecord("S1031234B"), HasSubstr("2 bytes and a half"));
  EXPECT_THAT(ReasonAgainstRecord("S1031234B6 "), HasSubstr("and a half"));
}

TEST(ParseSRecord, RefusesACountWithoutRoomForAddressAndChecksum) {
  EXPECT_THAT(ReasonAgainstRecord("S10212ED"), HasSubstr("count is 2"));
  EXPECT_THAT(ReasonAgainstRecord("S203123456"), HasSubstr("count is 3"));
  EXPECT_THAT(ReasonAgainstRecord("S100"), HasSubstr("count is 0"));
}

TEST(ParseSRecord, RefusesALineCutBeforeItsEnd) {
  const std::string line = "S208FF80101011121322";
  for (std::size_t size = 0; size < line.size(); ++size) {
    EXPECT_NE(ReasonAgainstRecord(line.substr(0, size)), "none") << size;
  }
}

TEST(ParseSRecord, NamesTheColumnOfWhatIsNotHexadecimal) {
  EXPECT_THAT(ReasonAgainstRecord("S1G31234B6"), HasSubstr("column 3"));
  EXPECT_THAT(ReasonAgainstRecord("S10312x4B6"), HasSubstr("column 7"));
  EXPECT_THAT(ReasonAgainstRecord("S1041234 0B6"), HasSubstr("column 9"));
  EXPECT_THAT(ReasonAgainstRecord("S1031234-1"), HasSubstr("column 9"));
}

TEST(LenientRecord, IsTakenApartByItsColumns) {
  const LenientRecord record("S206FF8000A1B2C3");
  EXPECT_EQ(record.Head(), "S206FF8000");
  EXPECT_EQ(record.Count(), 6);
  EXPECT_EQ(record.LowAddress(), 0x8000U);
  EXPECT_EQ(record.Data(0), 0xA1);
  EXPECT_EQ(record.Data(1), 0xB2);
  EXPECT_EQ(record.DataDigits(2), "A1B2");
}

TEST(LenientRecord, CountsWhatIsNotHexadecimalAsZero) {
  const LenientRecord record("S2XXFF80G0A1-2C3");
  EXPECT_EQ(record.Count(), 0);
  EXPECT_EQ(record.LowAddress(), 0U);
  EXPECT_EQ(record.Data(0), 0xA1);
  EXPECT_EQ(record.Data(1), 0);
  EXPECT_EQ(record.Data(2), 0xC3);
}

TEST(LenientRecord, LacksWhatStandsBehindTheEndOfTheLine) {
  EXPECT_EQ(LenientRecord("").Head(), "");
  EXPECT_EQ(LenientRecord("").Count(), 0);
  EXPECT_EQ(LenientRecord("S214FF").Head(), "S214FF");
  EXPECT_EQ(LenientRecord("S214FF").LowAddress(), 0U);
  EXPECT_EQ(LenientRecord("S214FF8000A1").Data(1), 0);
  EXPECT_EQ(LenientRecord("S214FF8000A1").DataDigits(16), "A1");
}

}  // namespace
}  // namespace vendlingua
