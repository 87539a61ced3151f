#include "core/proof/proof_sheet.h"

#include <gmock/gmock.h>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

std::string SheetOf(std::vector<ProofMessage> messages, std::size_t display = 0) {
  return FormatProofSheet({"A.MES", "ITALIANO", {{"ENGLISH", std::move(messages)}}},
                          Alphabet::Of(display));
}

std::size_t Count(std::string_view text, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string_view::npos;
       at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

TEST(ProofSheetTest, DrawsEveryGlyphOnceAndDotByDot) {
  const std::string html = SheetOf({{0, Codes("II"), Codes("I "), {}}});
  EXPECT_EQ(Count(html, "id=\"g49\""), 1U);
  EXPECT_EQ(Count(html, "href=\"#g49\""), 3U);
  // The letter is a column of seven dots with a serif of two at its top and bottom.
  const std::size_t glyph = html.find("id=\"g49\"");
  EXPECT_EQ(Count(html.substr(glyph, html.find("/>", glyph) - glyph), "M"), 11U);
  EXPECT_THAT(html, Not(HasSubstr("id=\"g4A\"")));
}

TEST(ProofSheetTest, NeedsNoOtherFile) {
  const std::string html = SheetOf({{0, Codes("A"), Codes("B"), {}}});
  EXPECT_THAT(html, AllOf(Not(HasSubstr("src=")), Not(HasSubstr("http")), Not(HasSubstr("url("))));
}

TEST(ProofSheetTest, MarksTheCellsThatTheBoardFills) {
  const std::string html = SheetOf({{0, Codes("A\xFE"), Codes("B\xFE"), {}}});
  EXPECT_EQ(Count(html, "<rect"), 2U);
  EXPECT_EQ(Count(html, "href=\"#g31\""), 2U);
  EXPECT_THAT(html, Not(HasSubstr("gFE")));
}

TEST(ProofSheetTest, KeepsTheRowsOfOneDisplayTogether) {
  std::vector<ProofMessage> messages;
  for (std::size_t number = 1; number < 6; ++number) {
    messages.push_back({number, Codes("A"), Codes("B"), {}});
  }
  // 1 alone, 2 over 3, 4 over 5.
  EXPECT_EQ(Count(SheetOf(messages), "<tbody>"), 3U);
  EXPECT_EQ(Count(SheetOf(messages), "</tbody>"), 3U);
}

TEST(ProofSheetTest, NamesFindingsAndLanguagesAsTextAndNeverAsMarkup) {
  const ProofSheet sheet = {
      "<b>.MES", "A&B", {{"\"C\"", {{0, Codes("<"), Codes("&"), {"1 < 2"}}}}}};
  const std::string html = FormatProofSheet(sheet, Alphabet::Of(0));
  EXPECT_THAT(html, AllOf(HasSubstr("&lt;b&gt;.MES"), HasSubstr("A&amp;B"), HasSubstr("1 &lt; 2"),
                          HasSubstr("&quot;C&quot;"), HasSubstr("aria-label=\"&lt;\"")));
  EXPECT_THAT(html, Not(HasSubstr("<b>")));
}

TEST(ProofSheetTest, ReadsTextsInTheCharactersOfTheDisplay) {
  EXPECT_THAT(SheetOf({{0, Codes("\xA8"), Codes("A"), {}}}, 1), HasSubstr("aria-label=\"П\""));
}

TEST(ProofSheetTest, OfNoLanguageIsAnEmptySheet) {
  const std::string html = FormatProofSheet({"A.MES", "ITALIANO", {}}, Alphabet::Of(0));
  EXPECT_THAT(html, AllOf(HasSubstr("Proof of A.MES"), Not(HasSubstr("<section>"))));
}

}  // namespace
}  // namespace vendlingua
