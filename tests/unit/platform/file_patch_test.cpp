#include "core/platform/file_patch.h"

#include <gtest/gtest.h>

namespace vendlingua {
namespace {

TEST(Patched, ReplacesBytesInSeveralPlacesInTurn) {
  EXPECT_EQ(Patched("0123456789", {{8, "IJK"}, {0, "A"}, {3, ""}, {5, "F"}}), "A1234F67IJK");
  EXPECT_EQ(Patched("0123", {{1, "xx"}, {2, "y"}}), "0xy3");
}

TEST(Patched, FillsAGapBehindTheOldEndWithZeros) {
  EXPECT_EQ(Patched("01", {{5, "X"}}), std::string("01\0\0\0X", 6));
}

}  // namespace
}  // namespace vendlingua
