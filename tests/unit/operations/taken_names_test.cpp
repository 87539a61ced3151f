#include "core/operations/taken_names.h"

#include <gtest/gtest.h>

namespace vendlingua {
namespace {

TEST(NameIsTaken, ByEveryOtherLanguageButTheReference) {
  MessageSet set;
  set.language_names = {"Default", "ITALIANO", "ENGLISH"};
  EXPECT_TRUE(NameIsTaken(set, 1, NameField::FromAnswer("english")));
  EXPECT_TRUE(NameIsTaken(set, kNewLanguage, NameField::FromAnswer("english")));
  EXPECT_FALSE(NameIsTaken(set, 2, NameField::FromAnswer("english")));
  EXPECT_FALSE(NameIsTaken(set, 1, NameField::FromCaption("Default")));
  EXPECT_FALSE(NameIsTaken(MessageSet(), kNewLanguage, NameField::FromAnswer("english")));
}

}  // namespace
}  // namespace vendlingua
