#include "core/checks/rules/glyph_rules.h"

#include "unit/checks/check_test.h"

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GlyphMissingTest : public test::CheckTest {};

TEST_F(GlyphMissingTest, FindsWhatTheDisplayDrawsAsNothing) {
  AddBytes("Solo acqua", std::string("Only\0water", 10));
  AddBytes("Solo acqua", "Only\xA0water");
  AddBytes("Solo acqua", "Only water");
  EXPECT_THAT(Found("glyph-missing"), ElementsAre(0, 1));
}

TEST_F(GlyphMissingTest, OffersBlanksInstead) {
  AddBytes("Solo acqua", std::string("Only\0\xA0water", 11));
  EXPECT_EQ(Fix("glyph-missing"), "Only  water     ");
}

TEST_F(GlyphMissingTest, LeavesATextThatDrawsNothingAtAllToTheOtherRule) {
  AddBytes("Solo acqua", std::string(16, '\0'));
  EXPECT_THAT(Found("glyph-missing"), IsEmpty());
}

TEST_F(GlyphMissingTest, GoesByTheDisplay) {
  display_ = test::kCyrillic;
  AddBytes("acqua", "\xA0");  // Б
  EXPECT_THAT(Found("glyph-missing"), IsEmpty());
}

// What is meant by a code is told by its neighbours: meant_glyphs_test.cpp.
class GlyphDiffersTest : public test::CheckTest {};

TEST_F(GlyphDiffersTest, FindsALetterThatTheDisplayDrawsAsAnother) {
  AddBytes("Strada",
           "Stra\xDF"
           "e");
  AddBytes("Strada", "Strasse");
  AddBytes(
      "60 \xDF"
      "C",
      "60 \xDF"
      "C");
  EXPECT_THAT(Found("glyph-differs"), ElementsAre(0));
}

TEST_F(GlyphDiffersTest, FindsItInTheOriginToo) {
  display_ = test::kCyrillic;
  AddBytes("Sconto fedelt\xE0", "Discount");
  EXPECT_THAT(Found("glyph-differs", 1), ElementsAre(0));
  EXPECT_THAT(Found("glyph-differs"), IsEmpty());
}

}  // namespace
}  // namespace vendlingua
