#include "core/checks/words.h"

#include <gmock/gmock.h>

#include <string_view>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::Text;

TEST(WordsTest, StandWithOneBlankBetweenThem) {
  EXPECT_EQ(Text(WordsOf(Codes("  Tube  \xFE\xFE Pod \xFE"))), "Tube Pod");
  EXPECT_EQ(Text(WordsOf(Codes("\xFE \xFE"))), "");
  EXPECT_EQ(Text(WordsOf(Codes("a.b"))), "a.b");
}

TEST(WordsTest, OfFourLettersCanBeTranslated) {
  const auto holds = [](std::size_t display, std::string_view text) {
    const Alphabet& alphabet = Alphabet::Of(display);
    return HoldsWords(alphabet, alphabet.CodesOf(text).codes);
  };
  EXPECT_TRUE(holds(0, "E01 Cups"));
  EXPECT_TRUE(holds(0, "Thés"));
  EXPECT_TRUE(holds(1, "вода"));
  EXPECT_TRUE(holds(2, "コーヒー"));
  EXPECT_TRUE(holds(3, "שלום"));
  EXPECT_FALSE(holds(0, "Rev. MDB NTC"));
  EXPECT_FALSE(holds(0, "ab1cd þþþþ 60°C ab-cd"));
  EXPECT_FALSE(holds(0, ""));
}

TEST(WordsTest, NothingIsDrawnOfBlanksAndInvisibleCodes) {
  const Alphabet& normal = Alphabet::Of(0);
  EXPECT_TRUE(DrawsNothing(normal, DisplayCodes{' ', 0xA0, 0, kPlaceholder}));
  EXPECT_FALSE(DrawsNothing(normal, DisplayCodes{' ', '.'}));
  EXPECT_FALSE(DrawsNothing(Alphabet::Of(1), DisplayCodes{0xA0}));
}

}  // namespace
}  // namespace vendlingua
