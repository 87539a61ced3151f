#include "core/platform/file_errors.h"

#include <gtest/gtest.h>

#include "core/platform/errors.h"

namespace vendlingua {
namespace {

std::string ToldReason(std::errc error) {
  return ReasonOf(std::make_error_code(error)).In(EnglishTexts());
}

TEST(ReasonOf, IsWhatTheSystemSays) {
  EXPECT_EQ(ToldReason(std::errc::permission_denied), "Permission denied");
}

TEST(ReasonOf, SaysInTheLanguageOfTheProgramThatAFileIsInUse) {
  EXPECT_EQ(ToldReason(std::errc::device_or_resource_busy), "it is in use by another program");
}

}  // namespace
}  // namespace vendlingua
