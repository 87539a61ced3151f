#include "core/platform/executable_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace vendlingua {
namespace {

TEST(ExecutableFile, IsTheProgramThatRuns) {
  EXPECT_EQ(ExecutableFile().stem(), "unit_tests");
  EXPECT_TRUE(std::filesystem::is_regular_file(ExecutableFile()));
}

TEST(ExecutableFolder, HoldsTheProgram) {
  EXPECT_EQ(ExecutableFolder(), ExecutableFile().parent_path());
}

}  // namespace
}  // namespace vendlingua
