#include "core/texts/ascii_case.h"

#include <gtest/gtest.h>

namespace vendlingua {
namespace {

TEST(UpperCase, RaisesTheLettersFromAToZ) { EXPECT_EQ(UpperCase("az.AZ 09"), "AZ.AZ 09"); }

TEST(UpperCase, KeepsAllOtherBytes) { EXPECT_EQ(UpperCase("@[`{è\xE8\xFF"), "@[`{è\xE8\xFF"); }

}  // namespace
}  // namespace vendlingua
