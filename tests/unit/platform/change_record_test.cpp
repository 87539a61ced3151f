#include "core/platform/change_record.h"

#include <gmock/gmock.h>

#include <string>

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kBefore = std::string(100, 'a') + std::string(100, 'b');

// `kBefore` with two places changed and seven bytes behind its end.
std::string After() {
  std::string after = kBefore + "newtail";
  return after.replace(10, 3, "xyz").replace(150, 2, "XY");
}

// "123456789" has the CRC-32 CBF43926, as every description of it says.
TEST(ChangeRecord, ChecksTheFileBeforeTheChangeByItsCrc32) {
  EXPECT_EQ(RecordOf("123456789", "123456789").checksum_before, 0xCBF43926U);
}

TEST(ChangeRecord, HoldsTheBytesThatDiffer) {
  const ChangeRecord record = RecordOf(kBefore, After());
  EXPECT_EQ(record.length_before, 200U);
  EXPECT_EQ(record.length_after, 207U);
  EXPECT_THAT(record.changes,
              ElementsAre(ChangedBytes{10, "aaa", "xyz"}, ChangedBytes{150, "bb", "XY"},
                          ChangedBytes{200, "", "newtail"}));
}

TEST(ChangeRecord, HoldsNothingWhereNothingChanges) {
  EXPECT_THAT(RecordOf(kBefore, kBefore).changes, IsEmpty());
  EXPECT_THAT(RecordOf("", "").changes, IsEmpty());
}

TEST(ChangeRecord, TakesPlacesThatLieCloseForOne) {
  std::string after = kBefore;
  after.replace(0, 1, "x").replace(16, 1, "x").replace(33, 1, "x");
  EXPECT_THAT(RecordOf(kBefore, after).changes,
              ElementsAre(ChangedBytes{0, std::string(17, 'a'), after.substr(0, 17)},
                          ChangedBytes{33, "a", "x"}));
}

TEST(ChangeRecord, IsWrittenWithItsNumbersLowByteFirst) {
  const ChangeRecord record{3, 5, 0x12345678, {{2, "c", "xyz"}}};
  const std::string bytes = ComposeRecord(record);
  const std::string expected(
      "Vendlingua undo file 1\n"
      "\x03\0\0\0"
      "\x05\0\0\0"
      "\x78\x56\x34\x12"
      "\x01\0\0\0"
      "\x02\0\0\0"
      "\x01\0\0\0"
      "\x03\0\0\0"
      "cxyz",
      23 + 28 + 4);
  EXPECT_EQ(bytes.substr(0, bytes.size() - 4), expected);
}

TEST(ChangeRecord, IsReadAsItWasWritten) {
  const ChangeRecord record = RecordOf(kBefore, After());
  EXPECT_EQ(ParseRecord(ComposeRecord(record)).record, record);
}

// A kill leaves a piece of an undo file; the change was not begun then.
TEST(ChangeRecord, IsUnfinishedWhereverItIsCut) {
  const std::string bytes = ComposeRecord(RecordOf(kBefore, After()));
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    const ParsedRecord parsed = ParseRecord(std::string_view(bytes).substr(0, size));
    EXPECT_FALSE(parsed.record) << size;
    EXPECT_TRUE(parsed.is_unfinished) << size;
  }
  EXPECT_TRUE(ParseRecord(std::string(bytes.size(), '\0')).is_unfinished);
}

// A power cut leaves any part of it.
TEST(ChangeRecord, IsUnfinishedWhereverBytesAreMissing) {
  const std::string bytes = ComposeRecord(RecordOf(kBefore, After()));
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] != '\0') {
      std::string torn = bytes;
      torn[i] = '\0';
      EXPECT_FALSE(ParseRecord(torn).record) << i;
      EXPECT_TRUE(ParseRecord(torn).is_unfinished) << i;
    }
  }
}

TEST(ChangeRecord, IsUnusableWithOneByteChanged) {
  const std::string bytes = ComposeRecord(RecordOf(kBefore, After()));
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    std::string damaged = bytes;
    damaged[i] = static_cast<char>(damaged[i] ^ 1);
    EXPECT_FALSE(ParseRecord(damaged).record) << i;
  }
}

TEST(ChangeRecord, IsNothingThatSomebodyElseWrote) {
  for (const char* bytes : {"x", "Vendlingua undo file 2\n", "a note\n", "Vendor"}) {
    const ParsedRecord parsed = ParseRecord(bytes);
    EXPECT_FALSE(parsed.record) << bytes;
    EXPECT_FALSE(parsed.is_unfinished) << bytes;
  }
}

// As a record that nobody cut, but whose changes lie outside the file that it tells of.
TEST(ChangeRecord, IsUnusableWhenItReachesBeyondItsFile) {
  for (const ChangeRecord& record :
       {ChangeRecord{3, 5, 0, {{4, "ab", "cd"}}}, ChangeRecord{3, 5, 0, {{4, "", "cd"}}},
        ChangeRecord{5, 3, 0, {}}, ChangeRecord{3, 5, 0, {{0xFFFFFFFF, "a", "b"}}}}) {
    EXPECT_FALSE(ParseRecord(ComposeRecord(record)).record);
  }
}

// It would have the file grow to as much as a number can say, a gigabyte or more.
TEST(ChangeRecord, IsUnusableWithoutTheBytesByWhichTheFileGrows) {
  for (const ChangeRecord& record :
       {ChangeRecord{3, 0x60000000, 0, {}}, ChangeRecord{0, 0x60000000, 0, {{0, "", "a"}}},
        ChangeRecord{3, 5, 0, {{3, "", "a"}}}, ChangeRecord{3, 5, 0, {{0, "abc", "xyz"}}}}) {
    EXPECT_FALSE(ParseRecord(ComposeRecord(record)).record);
  }
}

TEST(ChangeState, TellsTheTwoEndsFromWhatLiesBetween) {
  const ChangeRecord record = RecordOf(kBefore, After());
  EXPECT_EQ(StateOf(record, kBefore), ChangeState::kNotBegun);
  EXPECT_EQ(StateOf(record, After()), ChangeState::kComplete);
  std::string half = kBefore;
  EXPECT_EQ(StateOf(record, half.replace(10, 3, "xya")), ChangeState::kInterrupted);
  EXPECT_EQ(StateOf(record, kBefore + "new"), ChangeState::kInterrupted);
  EXPECT_EQ(StateOf(record, After().substr(0, 206)), ChangeState::kInterrupted);
}

// A file may have grown when its new bytes are not there yet.
TEST(ChangeState, IsInterruptedWithZerosBehindTheOldEnd) {
  const ChangeRecord record = RecordOf(kBefore, After());
  EXPECT_EQ(StateOf(record, kBefore + std::string(7, '\0')), ChangeState::kInterrupted);
}

TEST(ChangeState, IsUnknownWhenSomebodyElseChangedTheFile) {
  const ChangeRecord record = RecordOf(kBefore, After());
  std::string elsewhere = After();
  EXPECT_EQ(StateOf(record, elsewhere.replace(50, 1, "?")), ChangeState::kUnknown);
  std::string in_the_change = After();
  EXPECT_EQ(StateOf(record, in_the_change.replace(11, 1, "?")), ChangeState::kUnknown);
  std::string behind_the_end = After();
  EXPECT_EQ(StateOf(record, behind_the_end.replace(203, 1, "?")), ChangeState::kUnknown);
  EXPECT_EQ(StateOf(record, After() + "?"), ChangeState::kUnknown);
  EXPECT_EQ(StateOf(record, kBefore.substr(1)), ChangeState::kUnknown);
  EXPECT_EQ(StateOf(record, ""), ChangeState::kUnknown);
}

TEST(ContentBefore, PutsBytesAndLengthBack) {
  const ChangeRecord record = RecordOf(kBefore, After());
  EXPECT_EQ(ContentBefore(record, After()), kBefore);
  EXPECT_EQ(ContentBefore(record, After().substr(0, 203)), kBefore);
  EXPECT_EQ(ContentBefore(record, kBefore), kBefore);
}

}  // namespace
}  // namespace vendlingua
