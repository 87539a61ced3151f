#include "core/formats/flash_file.h"

#include <gmock/gmock.h>

#include <string>

#include "core/formats/copy_header.h"
#include "core/formats/hex.h"
#include "core/platform/errors.h"
#include "support/message_files.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Optional;

std::string FlashRefusal(std::string_view content) {
  try {
    ParseFlashFile(content);
  } catch (const Error& error) {
    return error.what();
  }
  return "";
}

TEST(FlashFile, HoldsWhatTheRecordsPutThere) {
  // S1 with two bytes at 1234, S2 with one at 123456, S3 with one at 00FFFFFF.
  const FlashFile file = ParseFlashFile("S1051234ABCD3C\r\nS20512345677E7\r\nS30600FFFFFF01FB\n");
  EXPECT_THAT(file.memory.At(0x1234), Optional(0xAB));
  EXPECT_THAT(file.memory.At(0x1235), Optional(0xCD));
  EXPECT_THAT(file.memory.At(0x123456), Optional(0x77));
  EXPECT_THAT(file.memory.At(0xFFFFFF), Optional(0x01));
  EXPECT_THAT(file.memory.Ranges(), ElementsAre(AddressRange{0x1234, 2}, AddressRange{0x123456, 1},
                                                AddressRange{0xFFFFFF, 1}));
}

TEST(FlashFile, CountsItsRecordsByType) {
  const FlashFile file =
      ParseFlashFile("S00600004844521B\r\nS20512345677E7\r\nS20512345777E6\r\nS9030000FC\r\n");
  EXPECT_THAT(file.records, ElementsAre(1, 0, 2, 0, 0, 0, 0, 0, 0, 1));
  EXPECT_EQ(file.first_line, "S00600004844521B");
}

TEST(FlashFile, IsEmptyWithoutDataRecords) {
  EXPECT_THAT(ParseFlashFile("").memory.Ranges(), IsEmpty());
  EXPECT_THAT(ParseFlashFile("S00600004844521B\r\nS9030000FC\r\n").memory.Ranges(), IsEmpty());
}

TEST(FlashFile, PassesTheFramingOfANineLanguageCopyOver) {
  const std::string record = "\r\nS20512345677E7\r\n";
  const std::string end = std::string(kLastCopyLine) + "\r\n";
  const std::string header = CopyHeader("303431374142", "E7");
  EXPECT_THAT(ParseFlashFile(header + record + end).memory.At(0x123456), Optional(0x77));
  // 98 + 30 + 34 + 31 + 37 + 42 + 5A = 200: one digit.
  const FlashFile file = ParseFlashFile(CopyHeader("30343137425A", "0") + record + end);
  EXPECT_THAT(file.records, ElementsAre(1, 0, 1, 0, 0, 0, 0, 0, 0, 0));
}

TEST(FlashFile, PassesOverTheEmptyLinesOfACompiledMessageFile) {
  EXPECT_THAT(ParseFlashFile("S20512345677E7\r\n\r\n\r\n").memory.At(0x123456), Optional(0x77));
}

TEST(FlashFile, RefusesWhatIsNoRecord) {
  EXPECT_THAT(FlashRefusal("S20512345677E7\r\nnone\r\n"), HasSubstr("line 2"));
  EXPECT_NE(FlashRefusal("S20512345677E\r\n"), "");
  EXPECT_NE(FlashRefusal("S20512345677E7\r\n \r\n"), "");
  EXPECT_NE(FlashRefusal(kLastCopyLine), "");
}

TEST(FlashFile, RefusesAWrongChecksum) {
  EXPECT_THAT(FlashRefusal("S20512345677E8\r\n"),
              HasSubstr("line 1: the checksum is E8 instead of E7"));
}

TEST(FlashFile, RefusesAddressesBeyondTheBoards) {
  // One byte at 01000000, and two from FFFFFF on.
  EXPECT_THAT(FlashRefusal("S3060100000001F7\r\n"), HasSubstr("0x1000000 (16777216)"));
  EXPECT_NE(FlashRefusal("S30700FFFFFF0101F9\r\n"), "");
}

TEST(FlashFile, IsReadFromAFile) {
  const test::TemporaryFolder folder;
  const auto path = folder.Write("A.MHX", "S20512345677E7\r\n");
  EXPECT_THAT(ReadFlashFile(path).memory.At(0x123456), Optional(0x77));
  EXPECT_THROW(ReadFlashFile(folder / "none.MHX"), FileError);
  EXPECT_THROW(ReadFlashFile(folder.Write("B.MHX", "x")), FileError);
}

TEST(BeginsWithRecord, LooksAtTheFirstByte) {
  const test::TemporaryFolder folder;
  EXPECT_TRUE(BeginsWithRecord(folder.Write("A.bin", "S2")));
  EXPECT_FALSE(BeginsWithRecord(folder.Write("B.MHX", " S2")));
  EXPECT_FALSE(BeginsWithRecord(folder.Write("C.MHX", "")));
  EXPECT_THROW(BeginsWithRecord(folder / "none.MHX"), FileError);
}

}  // namespace
}  // namespace vendlingua
