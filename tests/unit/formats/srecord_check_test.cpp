#include "core/formats/srecord_check.h"

#include <gmock/gmock.h>

#include <random>
#include <set>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::S2Line;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr std::string_view kHeaderRecord = "S013000044543034313741422020202020202020E7";
constexpr std::string_view kLastLine = "S214FFFFF00FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFC";
const std::string kFirst = S2Line(0xFF0000, "0123456789ABCDEF");
const std::string kSecond = S2Line(0xFF0010, "fedcba9876543210");
const std::string kThird = S2Line(0xFF0020, "xxxxxxxxxxxxxxxx");

std::string File(std::initializer_list<std::string_view> lines) {
  std::string file;
  for (const std::string_view line : lines) {
    file.append(line).append("\r\n");
  }
  return file;
}

TEST(CheckSRecords, FindsNothingInASoundFile) {
  EXPECT_THAT(CheckSRecords(File({kFirst, kSecond})), IsEmpty());
}

TEST(CheckSRecords, KnowsRecordsOfEveryType) {
  EXPECT_THAT(CheckSRecords(File({"S00600004844521B", "S1076000010203048E", "S5030001FB",
                                  "S9036000"
                                  "9C"})),
              IsEmpty());
  EXPECT_THAT(CheckSRecords(File({"S3060000600041"
                                  "58",
                                  "S70500006000"
                                  "9A"})),
              IsEmpty());
}

TEST(CheckSRecords, TakesLinesThatEndInLfAndALastLineWithoutEnd) {
  EXPECT_THAT(CheckSRecords(kFirst + "\n" + kSecond), IsEmpty());
}

// It cannot be opened as a message file.
TEST(CheckSRecords, ReportsTheFirstLineOfAMsxFileThatEndsInLfAlone) {
  const std::string header(kHeaderRecord);
  EXPECT_THAT(CheckSRecords(header + "\r\n" + kFirst + "\n" + kSecond + "\n"),
              ElementsAre("line 2: ends in LF alone, a .MSX file needs CR LF"));
  EXPECT_THAT(CheckSRecords(header + "\n" + kFirst + "\n"),
              ElementsAre("line 1: ends in LF alone, a .MSX file needs CR LF"));
}

TEST(CheckSRecords, TakesAMsxFileWhoseLastLineHasNoEnd) {
  EXPECT_THAT(CheckSRecords(std::string(kHeaderRecord) + "\r\n" + kFirst), IsEmpty());
}

TEST(CheckSRecords, KnowsTheHeaderChecksumOfAnIdentifiedCopy) {
  EXPECT_THAT(CheckSRecords(File({kHeaderRecord, kFirst})), IsEmpty());
}

TEST(CheckSRecords, KnowsTheLastLineOfANineLanguageCopy) {
  EXPECT_THAT(CheckSRecords(File({kHeaderRecord, kFirst, kLastLine})), IsEmpty());
}

TEST(CheckSRecords, ReportsTheLastLineOfACopyInAnyOtherPlace) {
  EXPECT_THAT(CheckSRecords(File({kHeaderRecord, kFirst, kLastLine, kSecond})),
              ElementsAre(StartsWith("line 3: ")));
  EXPECT_THAT(CheckSRecords(File({kFirst, kLastLine})), ElementsAre(StartsWith("line 2: ")));
}

TEST(CheckSRecords, ReportsTheHeaderOfACopyBehindTheFirstLine) {
  EXPECT_THAT(CheckSRecords(File({kFirst, kHeaderRecord})), ElementsAre(StartsWith("line 2: ")));
}

TEST(CheckSRecords, ReportsAWrongChecksumWithBothValues) {
  EXPECT_THAT(CheckSRecords("S10760000102030400\r\n"),
              ElementsAre("line 1: the checksum is 00 instead of 8E"));
}

TEST(CheckSRecords, ReportsAWrongCount) {
  EXPECT_THAT(CheckSRecords(File({"S1086000010203048D", kFirst})),
              ElementsAre(StartsWith("line 1: the count is 8, but the line holds 7")));
}

TEST(CheckSRecords, ReportsAnOddNumberOfDigits) {
  EXPECT_THAT(CheckSRecords(File({kFirst + "0"})).at(0), StartsWith("line 1: the count is 20"));
}

TEST(CheckSRecords, ReportsWhatIsNotHexadecimalWithItsColumn) {
  EXPECT_THAT(CheckSRecords(File({"S10760000102GG048E", kFirst})),
              ElementsAre(testing::AllOf(StartsWith("line 1: column 13"), HasSubstr("GG"))));
}

TEST(CheckSRecords, ReportsLowerCaseDigits) {
  EXPECT_THAT(CheckSRecords("S1076000010203048e\r\n"),
              ElementsAre("line 1: lower-case hexadecimal digits"));
}

TEST(CheckSRecords, ReportsLinesThatAreNoRecords) {
  EXPECT_THAT(CheckSRecords(File({"", "S", "SX", ":10000000", "s1076000010203048E", kFirst})),
              ElementsAre(StartsWith("line 1: "), StartsWith("line 2: "), StartsWith("line 3: "),
                          StartsWith("line 4: "), StartsWith("line 5: ")));
}

TEST(CheckSRecords, ReportsAnS4Record) {
  EXPECT_THAT(CheckSRecords(File({"S40560000102"
                                  "97",
                                  kFirst})),
              ElementsAre(StartsWith("line 1: is an S4 record")));
}

TEST(CheckSRecords, ReportsALoneCarriageReturn) {
  EXPECT_THAT(CheckSRecords(kFirst + "\r" + kSecond), testing::Not(IsEmpty()));
}

TEST(CheckSRecords, ReportsAGapOnTheLineBehindIt) {
  EXPECT_THAT(CheckSRecords(File({kFirst, kThird})),
              ElementsAre("line 2: gap: address 0xFF0020 (16711712) follows 0xFF000F (16711695)"));
}

TEST(CheckSRecords, ReportsARecordThatIsGivenTwice) {
  EXPECT_THAT(
      CheckSRecords(File({kFirst, kFirst})),
      ElementsAre("line 2: address 0xFF0000 (16711680) goes back behind 0xFF000F (16711695)",
                  "line 2: overlap: bytes from address 0xFF0000 (16711680) on were given before"));
}

TEST(CheckSRecords, ReportsAnOverlapOfOneByte) {
  EXPECT_THAT(CheckSRecords(File({kFirst, S2Line(0xFF000F, "0123456789ABCDEF")})),
              testing::Contains(HasSubstr("overlap")));
}

TEST(CheckSRecords, ReportsAnOverlapWithAnyEarlierRecord) {
  const auto findings = CheckSRecords(File({kSecond, kThird, kFirst, S2Line(0xFF001F, "x")}));
  EXPECT_THAT(
      findings,
      ElementsAre("line 3: address 0xFF0000 (16711680) goes back behind 0xFF002F (16711727)",
                  "line 4: gap: address 0xFF001F (16711711) follows 0xFF000F (16711695)",
                  "line 4: overlap: bytes from address 0xFF001F (16711711) on were given "
                  "before"));
}

TEST(CheckSRecords, TakesRecordsInAnyOrderForNoOverlap) {
  EXPECT_THAT(CheckSRecords(File({kThird, kFirst, kSecond})),
              testing::Not(testing::Contains(HasSubstr("overlap"))));
}

TEST(CheckSRecords, ReportsAFileWithoutData) {
  EXPECT_THAT(CheckSRecords(""), ElementsAre("the file holds no data record"));
  EXPECT_THAT(CheckSRecords(File({kHeaderRecord})), ElementsAre("the file holds no data record"));
}

// The loader's own files: addresses of an S1 file that passes 0xFFFF have five digits.
TEST(CheckSRecords, ReportsAnAddressOfFiveDigitsInAnS1Record) {
  EXPECT_THAT(CheckSRecords("S113FFF0" + std::string(32, '0') + "FD\r\nS11310000" +
                            std::string(32, '0') + "DC\r\n"),
              ElementsAre(StartsWith("line 2: ")));
}

TEST(CheckSRecords, FindsEveryFileThatIsCutInsideALine) {
  const std::string file = File({kHeaderRecord, kFirst, kSecond});
  const std::set<std::size_t> sound_lengths = {file.size() - kSecond.size() - 4,
                                               file.size() - kSecond.size() - 2, file.size() - 2};
  for (std::size_t length = 0; length < file.size(); ++length) {
    EXPECT_EQ(CheckSRecords(std::string_view(file).substr(0, length)).empty(),
              sound_lengths.contains(length))
        << length;
  }
}

TEST(CheckSRecords, GivesUpAFileOfWhichTooMuchIsWrong) {
  std::string file;
  for (int i = 0; i < 20000; ++i) {
    file += "x\n";
  }
  const auto findings = CheckSRecords(file);
  EXPECT_THAT(findings, testing::SizeIs(10001));
  EXPECT_THAT(findings.at(9999), StartsWith("line 10000: "));
  EXPECT_EQ(findings.at(10000), "line 10001 and what follows was not checked: too much is wrong");
}

TEST(CheckSRecords, ChecksAFileToItsEndWhenJustAboutTooMuchIsWrong) {
  std::string file;
  for (int i = 0; i < 9999; ++i) {
    file += "x\n";
  }
  const auto findings = CheckSRecords(file);
  EXPECT_THAT(findings, testing::SizeIs(10000));
  EXPECT_EQ(findings.back(), "the file holds no data record");
}

TEST(CheckSRecords, TakesRandomBytesWithoutHarm) {
  std::mt19937 random(3);
  constexpr std::string_view kBytes = "S0S1S2S30123456789ABCDEFaf\r\n\n";
  for (int round = 0; round < 2000; ++round) {
    std::string file(random() % 300, ' ');
    for (char& byte : file) {
      byte = kBytes[random() % kBytes.size()];
    }
    EXPECT_THAT(CheckSRecords(file), testing::Not(IsEmpty()));
  }
}

TEST(DamageOf, IsNoneForWhatAMsxFileMayHold) {
  EXPECT_EQ(DamageOf(kFirst), "");
  EXPECT_EQ(DamageOf(""), "");
  EXPECT_EQ(DamageOf(kLastLine), "");
}

TEST(DamageOf, SaysWhatIsWrongWithARecord) {
  EXPECT_THAT(DamageOf("no record"), testing::Not(IsEmpty()));
  // 07 + 60 + 00 + 01 + 02 + 03 + 04 = 71, whose complement is 8E.
  EXPECT_EQ(DamageOf("S1076000010203048D"), "the checksum is 8D instead of 8E");
}

}  // namespace
}  // namespace vendlingua
