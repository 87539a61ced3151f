#include "core/formats/text_lines.h"

#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <vector>

namespace vendlingua {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> All(std::string_view content) {
  std::vector<std::string> texts;
  TextLines lines(content);
  while (const auto line = lines.Next()) {
    texts.emplace_back(line->text);
  }
  return texts;
}

TEST(TextLines, EndInCrLf) { EXPECT_THAT(All("a\r\nb\r\n"), ElementsAre("a", "b")); }

TEST(TextLines, EndInLf) { EXPECT_THAT(All("a\nb\n"), ElementsAre("a", "b")); }

TEST(TextLines, CountTheLastOneWithoutItsEnd) {
  EXPECT_THAT(All("a\r\nb"), ElementsAre("a", "b"));
  EXPECT_THAT(All("a"), ElementsAre("a"));
}

TEST(TextLines, MayBeEmpty) {
  EXPECT_THAT(All("\r\n\n\r\n"), ElementsAre("", "", ""));
  EXPECT_THAT(All(""), IsEmpty());
}

TEST(TextLines, DoNotEndInALoneCr) {
  EXPECT_THAT(All("a\rb\r\nc\r"), ElementsAre("a\rb", "c\r"));
  EXPECT_THAT(All("\r\r\n"), ElementsAre("\r"));
}

TEST(TextLines, TellWhetherACrInThemEndsNoLine) {
  EXPECT_TRUE(TextLines("a\rb\r\n").Next()->HasLoneCarriageReturn());
  EXPECT_TRUE(TextLines("a\r").Next()->HasLoneCarriageReturn());
  EXPECT_FALSE(TextLines("a\r\n").Next()->HasLoneCarriageReturn());
  EXPECT_FALSE(TextLines("a\n").Next()->HasLoneCarriageReturn());
}

TEST(TextLines, TellWhereTheyBegin) {
  TextLines lines("ab\r\nc\nd");
  EXPECT_EQ(lines.Next()->offset, 0U);
  EXPECT_EQ(lines.Next()->offset, 4U);
  EXPECT_EQ(lines.Next()->offset, 6U);
}

TEST(TextLines, TellHowTheyEnd) {
  TextLines lines("a\r\nb\n\r\n\nc\r");
  EXPECT_EQ(lines.Next()->end, LineEnd::kCrAndLf);
  EXPECT_EQ(lines.Next()->end, LineEnd::kLfAlone);
  EXPECT_EQ(lines.Next()->end, LineEnd::kCrAndLf);
  EXPECT_EQ(lines.Next()->end, LineEnd::kLfAlone);
  EXPECT_EQ(lines.Next()->end, LineEnd::kEndOfFile);
}

TEST(TextLines, TellWhetherTheyAreAllRead) {
  EXPECT_TRUE(TextLines("").AtEnd());
  TextLines lines("a\nb");
  EXPECT_FALSE(lines.AtEnd());
  lines.Next();
  EXPECT_FALSE(lines.AtEnd());
  lines.Next();
  EXPECT_TRUE(lines.AtEnd());
}

TEST(TextLines, CountWhatWasRead) {
  TextLines lines("a\nb\nc");
  EXPECT_EQ(lines.count(), 0U);
  lines.Next();
  EXPECT_EQ(lines.count(), 1U);
  lines.Skip(2);
  EXPECT_EQ(lines.count(), 3U);
  lines.Next();
  EXPECT_EQ(lines.count(), 3U);
}

TEST(TextLines, CanBeSkippedUpToTheEnd) {
  TextLines lines("a\nb\nc");
  EXPECT_TRUE(lines.Skip(0));
  EXPECT_TRUE(lines.Skip(2));
  EXPECT_EQ(lines.Next()->text, "c");
  EXPECT_FALSE(lines.Skip(1));
}

}  // namespace
}  // namespace vendlingua
