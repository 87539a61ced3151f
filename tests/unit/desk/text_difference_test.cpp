#include "core/desk/text_difference.h"

#include <gmock/gmock.h>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<CellRun> Difference(const char* other, const char* text) {
  return DifferenceFrom(Codes(other), Codes(text));
}

TEST(DifferenceFrom, TheSameTextHasNone) {
  EXPECT_THAT(Difference("Prova acqua", "Prova acqua"), IsEmpty());
  EXPECT_THAT(Difference("", ""), IsEmpty());
}

TEST(DifferenceFrom, BlanksAreNone) { EXPECT_THAT(Difference("Prova", "  Prova   "), IsEmpty()); }

TEST(DifferenceFrom, IsWhatTheOtherTextLacks) {
  EXPECT_THAT(Difference("Prova acqua", "Prova acqua calda"), ElementsAre(CellRun{12, 5}));
  EXPECT_THAT(Difference("Prova acqua calda", "Prova acqua"), IsEmpty());
  EXPECT_THAT(Difference("Tazza 1", "Tazza 2"), ElementsAre(CellRun{6, 1}));
  EXPECT_THAT(Difference("", "ab"), ElementsAre(CellRun{0, 2}));
}

TEST(DifferenceFrom, KeepsTheOrder) {
  EXPECT_THAT(Difference("ab", "ba"), ElementsAre(CellRun{1, 1}));
  EXPECT_THAT(Difference("abcd", "xabycdz"),
              ElementsAre(CellRun{0, 1}, CellRun{3, 1}, CellRun{6, 1}));
}

}  // namespace
}  // namespace vendlingua
