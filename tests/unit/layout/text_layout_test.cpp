#include "core/layout/text_layout.h"

#include <gmock/gmock.h>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::Text;

constexpr std::size_t kBoardWidth = 16;

// The board fills cells 9 and 11 to 16.
const std::vector<CellRange> kBoard = {{8, 1}, {10, 6}};

LooseText Loose(std::string_view text) { return LooseText(Codes(text)); }

TEST(LayOut, PadsWhatStandsBeforeAPlaceholderToItsColumn) {
  const Layout layout = LayOut(Loose("Kredit \xFE \xFE\xFE\xFE\xFE\xFE\xFE"), kBoard, kBoardWidth);
  EXPECT_FALSE(layout.overflow);
  EXPECT_EQ(Text(layout.cells), "Kredit  \xFE \xFE\xFE\xFE\xFE\xFE\xFE");
}

TEST(LayOut, PadsWhatStandsBehindTheLastPlaceholderToTheWidth) {
  EXPECT_EQ(Text(LayOut(Loose("\xFE"
                              "ab"),
                        std::vector<CellRange>{{1, 1}}, 6)
                     .cells),
            " \xFE"
            "ab  ");
  EXPECT_EQ(Text(LayOut(Loose("ab"), {}, 4).cells), "ab  ");
}

TEST(LayOut, CountsNoBlanksInFrontOfAPlaceholder) {
  const Layout layout = LayOut(Loose("ab     \xFE"), std::vector<CellRange>{{2, 1}}, 3);
  EXPECT_FALSE(layout.overflow);
  EXPECT_EQ(Text(layout.cells), "ab\xFE");
}

TEST(LayOut, RefusesWhatHasNoRoomBeforeAPlaceholder) {
  const Layout layout =
      LayOut(Loose("Guthabenx\xFE \xFE\xFE\xFE\xFE\xFE\xFE"), kBoard, kBoardWidth);
  ASSERT_TRUE(layout.overflow);
  EXPECT_EQ(Text(layout.overflow->part), "Guthabenx");
  EXPECT_EQ(layout.overflow->room, (CellRange{0, 8}));
}

TEST(LayOut, RefusesWhatHasNoRoomBetweenPlaceholders) {
  const Layout layout = LayOut(Loose("\xFE::\xFE\xFE\xFE\xFE\xFE\xFE"), kBoard, kBoardWidth);
  ASSERT_TRUE(layout.overflow);
  EXPECT_EQ(Text(layout.overflow->part), "::");
  EXPECT_EQ(layout.overflow->room, (CellRange{9, 1}));
}

TEST(LayOut, RefusesWhatHasNoRoomBehindTheLastPlaceholder) {
  const Layout layout = LayOut(Loose("\xFE"
                                     "abc"),
                               std::vector<CellRange>{{1, 1}}, 4);
  ASSERT_TRUE(layout.overflow);
  EXPECT_EQ(layout.overflow->room, (CellRange{2, 2}));
}

TEST(Centred, PutsATextInTheMiddleAndHalfABlankToTheLeft) {
  EXPECT_EQ(Text(Centred(Codes("ab"), 6).cells), "  ab  ");
  EXPECT_EQ(Text(Centred(Codes("abc"), 6).cells), " abc  ");
  EXPECT_EQ(Text(Centred(Codes("    abc"), 6).cells), " abc  ");
  EXPECT_EQ(Text(Centred(Codes("    abcdef"), 6).cells), "abcdef");
}

TEST(Centred, RefusesWhatIsWiderThanTheMessage) {
  const Layout layout = Centred(Codes("  abcdefg "), 6);
  ASSERT_TRUE(layout.overflow);
  EXPECT_EQ(Text(layout.overflow->part), "abcdefg");
  EXPECT_EQ(layout.overflow->room, (CellRange{0, 6}));
}

}  // namespace
}  // namespace vendlingua
