#include "core/exchange/xliff_writer.h"

#include <gmock/gmock.h>

namespace vendlingua {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

TranslationTable Table(TranslationRow row) {
  return {.name = "A&B.MES",
          .source_language = "it",
          .target_language = "en",
          .width = 16,
          .rows = {std::move(row)}};
}

TEST(WriteXliff, WritesAUnitAMessage) {
  EXPECT_EQ(WriteXliff(Table({1,
                              3,
                              {{"Credito "}, {"þ", true}, {" "}, {"þþ", true}, {"    "}},
                              {{"Credit  "}, {"þ", true}, {" "}, {"þþ", true}, {" x  "}},
                              {{8, 1}, {10, 2}}})),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<xliff version=\"1.2\" xmlns=\"urn:oasis:names:tc:xliff:document:1.2\">\n"
            "  <file original=\"A&amp;B.MES\" source-language=\"it\" target-language=\"en\" "
            "datatype=\"plaintext\">\n"
            "    <body>\n"
            "      <trans-unit id=\"3\" resname=\"3\" maxwidth=\"16\" size-unit=\"char\" "
            "xml:space=\"preserve\">\n"
            "        <source>Credito <x id=\"1\" equiv-text=\"þ\"/> "
            "<x id=\"2\" equiv-text=\"þþ\"/></source>\n"
            "        <target state=\"translated\">Credit  <x id=\"1\" equiv-text=\"þ\"/> "
            "<x id=\"2\" equiv-text=\"þþ\"/> x</target>\n"
            "        <note from=\"developer\">The board fills cells 9 and 11 to 12.</note>\n"
            "      </trans-unit>\n"
            "    </body>\n"
            "  </file>\n"
            "</xliff>\n");
}

TEST(WriteXliff, EscapesWhatIsMarkup) {
  EXPECT_THAT(WriteXliff(Table({1, 3, {{"<a> & \"b\""}}, {}})),
              HasSubstr("<source>&lt;a&gt; &amp; \"b\"</source>"));
}

TEST(WriteXliff, MarksWhatNeedsTranslation) {
  TranslationTable table = Table({1, 3, {{"a"}}, {{"a"}}, {}, true});
  EXPECT_THAT(WriteXliff(table), HasSubstr("<target state=\"needs-translation\">a</target>"));
  table.target_language = "it";
  EXPECT_THAT(WriteXliff(table), HasSubstr("<target state=\"translated\">a</target>"));
}

TEST(WriteXliff, HasNoNoteWhereTheBoardFillsNothing) {
  EXPECT_THAT(WriteXliff(Table({1, 3, {{"a"}}, {{"b"}}})), Not(HasSubstr("<note")));
}

TEST(WriteXliff, WritesPlaceholdersOfATargetThatAreNotTheSourcesAsCharacters) {
  EXPECT_THAT(WriteXliff(Table({1, 3, {{"a"}, {"þþ", true}}, {{"b "}, {"þ", true}, {" "}}})),
              HasSubstr(">b þ</target>"));
  EXPECT_THAT(WriteXliff(Table({1, 3, {{"a"}}, {{"b"}, {"þ", true}}})), HasSubstr(">bþ</target>"));
}

// In a ".MSX" file the cells that the board fills are blank.
TEST(WriteXliff, ShowsBlankCellsOfTheBoardAsPlaceholders) {
  EXPECT_THAT(WriteXliff(Table({1, 3, {{"a"}, {"þþ", true}}, {{"b"}, {"  ", true}}})),
              HasSubstr(">b<x id=\"1\" equiv-text=\"þþ\"/></target>"));
}

}  // namespace
}  // namespace vendlingua
