#include "core/texts/ascii_case.h"

#include <gtest/gtest.h>

namespace vendlingua {
namespace {

TEST(UpperCase, RaisesTheLettersAToZ) {
  EXPECT_EQ(UpperCase("abcxyz LCD_Cy .mSx"), "ABCXYZ LCD_CY .MSX");
}

TEST(UpperCase, LeavesEveryOtherByte) {
  std::string others;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte < 'a' || byte > 'z') {
      others += static_cast<char>(byte);
    }
  }
  EXPECT_EQ(UpperCase(others), others);
}

}  // namespace
}  // namespace vendlingua
