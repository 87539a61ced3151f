#include "core/platform/record_bytes.h"

#include <gtest/gtest.h>

namespace vendlingua {
namespace {

// "123456789" has the CRC-32 CBF43926, as every description of it says.
TEST(RecordBytes, AreCheckedByCrc32) { EXPECT_EQ(Checksum("123456789"), 0xCBF43926U); }

TEST(RecordBytes, HaveNumbersWithTheLowByteFirst) {
  std::string bytes;
  AppendNumber(bytes, 0x12345678U);
  EXPECT_EQ(bytes, "\x78\x56\x34\x12");
  EXPECT_EQ(RecordReader(bytes).Number(), 0x12345678U);
}

TEST(RecordBytes, ThatAreMissingAreNoticed) {
  RecordReader reader("ab");
  EXPECT_EQ(reader.Bytes(2), "ab");
  EXPECT_TRUE(reader.is_complete());
  EXPECT_TRUE(reader.at_end());
  EXPECT_EQ(reader.Number(), 0U);
  EXPECT_FALSE(reader.is_complete());
}

}  // namespace
}  // namespace vendlingua
