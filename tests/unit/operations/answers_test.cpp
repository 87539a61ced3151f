#include "core/operations/answers.h"

#include <gtest/gtest.h>

#include <limits>

namespace vendlingua {
namespace {

constexpr std::uint64_t kLargest = std::numeric_limits<std::uint64_t>::max();

TEST(LeadingNumber, ReadsDecimalDigits) {
  EXPECT_EQ(LeadingNumber("9"), 9U);
  EXPECT_EQ(LeadingNumber("8192"), 8192U);
}

TEST(LeadingNumber, ReadsHexadecimalBehindItsMark) {
  EXPECT_EQ(LeadingNumber("&HFF8000"), 16744448U);
  EXPECT_EQ(LeadingNumber("&H6000"), 24576U);
  EXPECT_EQ(LeadingNumber("&hff8000"), 16744448U);
}

TEST(LeadingNumber, TakesHexadecimalFrom8000UpAsPositive) {
  EXPECT_EQ(LeadingNumber("&H8000"), 32768U);
  EXPECT_EQ(LeadingNumber("&HFFFF"), 65535U);
  EXPECT_EQ(LeadingNumber("&HFFFFFFFF"), 4294967295U);
}

TEST(LeadingNumber, StopsAtTheFirstCharacterThatIsNoDigit) {
  EXPECT_EQ(LeadingNumber("9 lingue"), 9U);
  EXPECT_EQ(LeadingNumber("12.7"), 12U);
  EXPECT_EQ(LeadingNumber("&H6000&"), 24576U);
}

TEST(LeadingNumber, PassesOverBlanksBeforeIt) { EXPECT_EQ(LeadingNumber("   7"), 7U); }

TEST(LeadingNumber, IsZeroWhenTheAnswerBeginsWithNone) {
  for (const char* answer : {"", "   ", "abc", "x9", "&", "&H", "&HXY", "H6000", "-"}) {
    EXPECT_EQ(LeadingNumber(answer), 0U) << '"' << answer << '"';
  }
}

TEST(LeadingNumber, CountsAsTheLargestNumberBeyond64Bits) {
  EXPECT_EQ(LeadingNumber("99999999999999999999999"), kLargest);
  EXPECT_EQ(LeadingNumber("&H10000000000000000"), kLargest);
}

TEST(WholeNumber, ReadsDecimalAndHexadecimal) {
  EXPECT_EQ(WholeNumber("8192"), 8192U);
  EXPECT_EQ(WholeNumber("&H2000"), 8192U);
  EXPECT_EQ(WholeNumber("0"), 0U);
}

TEST(WholeNumber, TakesHexadecimalFrom8000UpAsPositive) {
  EXPECT_EQ(WholeNumber("&H8000"), 32768U);
}

TEST(WholeNumber, AllowsBlanksAroundIt) { EXPECT_EQ(WholeNumber("  &H2000 "), 8192U); }

TEST(WholeNumber, IsNothingForAnyOtherAnswer) {
  for (const char* answer : {"", "  ", "abc", "8192 byte", "&H", "&H20G0", "81.92", "8 192"}) {
    EXPECT_EQ(WholeNumber(answer), std::nullopt) << '"' << answer << '"';
  }
}

TEST(WholeNumber, CountsAsTheLargestNumberBeyond64Bits) {
  EXPECT_EQ(WholeNumber("99999999999999999999999"), kLargest);
}

}  // namespace
}  // namespace vendlingua
