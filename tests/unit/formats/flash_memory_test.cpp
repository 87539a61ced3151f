#include "core/formats/flash_memory.h"

#include <gmock/gmock.h>

#include <array>
#include <numeric>
#include <string>

#include "core/formats/copy_header.h"
#include "core/formats/hex.h"
#include "core/platform/errors.h"
#include "support/message_files.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Optional;
using testing::SizeIs;

std::string FlashRefusal(std::string_view content) {
  try {
    ParseFlashMemory(content);
  } catch (const Error& error) {
    return error.what();
  }
  return "";
}

TEST(FlashMemory, HoldsWhatTheRecordsPutThere) {
  // S1 with two bytes at 1234, S2 with one at 123456, S3 with one at 00FFFFFF.
  const FlashMemory memory =
      ParseFlashMemory("S1051234ABCD3C\r\nS20512345677E7\r\nS30600FFFFFF01FB\n");
  EXPECT_THAT(memory.At(0x1234), Optional(0xAB));
  EXPECT_THAT(memory.At(0x1235), Optional(0xCD));
  EXPECT_THAT(memory.At(0x123456), Optional(0x77));
  EXPECT_THAT(memory.At(0xFFFFFF), Optional(0x01));
  EXPECT_EQ(memory.At(0x1233), std::nullopt);
  EXPECT_EQ(memory.At(0x1236), std::nullopt);
  EXPECT_THAT(memory.pages(), SizeIs(3));
}

TEST(FlashMemory, IsEmptyWithoutDataRecords) {
  EXPECT_THAT(ParseFlashMemory("").pages(), IsEmpty());
  EXPECT_THAT(ParseFlashMemory("S00600004844521B\r\nS9030000FC\r\n").pages(), IsEmpty());
}

TEST(FlashMemory, KeepsTheLaterOfTwoBytes) {
  FlashMemory memory;
  memory.Put(7, std::array<std::uint8_t, 2>{1, 2});
  memory.Put(8, std::array<std::uint8_t, 1>{3});
  EXPECT_THAT(memory.At(7), Optional(1));
  EXPECT_THAT(memory.At(8), Optional(3));
}

TEST(FlashMemory, GoesAcrossPages) {
  std::array<std::uint8_t, 255> bytes;
  std::iota(bytes.begin(), bytes.end(), std::uint8_t{0});
  FlashMemory memory;
  memory.Put(200, bytes);
  for (std::uint32_t i = 0; i < bytes.size(); ++i) {
    EXPECT_THAT(memory.At(200 + i), Optional(i));
  }
  EXPECT_EQ(memory.At(199), std::nullopt);
  EXPECT_EQ(memory.At(455), std::nullopt);
}

TEST(FlashMemory, PassesTheFramingOfANineLanguageCopyOver) {
  const std::string header =
      CopyHeader("303431374142", HexField(CopyHeaderChecksum("303431374142"), 2));
  const std::string copy = header + "\r\nS20512345677E7\r\n" + std::string(kLastCopyLine) + "\r\n";
  EXPECT_THAT(ParseFlashMemory(copy).At(0x123456), Optional(0x77));
}

TEST(FlashMemory, RefusesWhatIsNoRecord) {
  EXPECT_THAT(FlashRefusal("S20512345677E7\r\nnone\r\n"), HasSubstr("line 2"));
  EXPECT_NE(FlashRefusal("S20512345677E\r\n"), "");
  EXPECT_NE(FlashRefusal("S20512345677E7\r\n\r\n"), "");
  EXPECT_NE(FlashRefusal(kLastCopyLine), "");
}

TEST(FlashMemory, RefusesAWrongChecksum) {
  EXPECT_THAT(FlashRefusal("S20512345677E8\r\n"),
              HasSubstr("line 1: the checksum is E8 instead of E7"));
}

TEST(FlashMemory, RefusesAddressesBeyondTheBoards) {
  // One byte at 01000000, and two from FFFFFF on.
  EXPECT_THAT(FlashRefusal("S3060100000001F7\r\n"), HasSubstr("1000000"));
  EXPECT_NE(FlashRefusal("S30700FFFFFF0101F9\r\n"), "");
}

TEST(FlashMemory, IsReadFromAFile) {
  const test::TemporaryFolder folder;
  const auto path = folder.Write("A.MHX", "S20512345677E7\r\n");
  EXPECT_THAT(ReadFlashMemory(path).At(0x123456), Optional(0x77));
  EXPECT_THROW(ReadFlashMemory(folder / "none.MHX"), FileError);
  EXPECT_THROW(ReadFlashMemory(folder.Write("B.MHX", "x")), FileError);
}

}  // namespace
}  // namespace vendlingua
