#include "core/exchange/translation_table.h"

#include <gmock/gmock.h>

#include "support/engine_test.h"

namespace vendlingua {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

class TableOfTest : public test::EngineTest {
 protected:
  // A file of three messages of four cells. Placeholders of the reference are given.
  void OpenMes(std::string_view reference, std::string_view text) {
    const test::MesFile file;
    std::string bytes = file.Bytes();
    bytes.replace(24 + 20, 4, reference);
    bytes.replace(24 + file.BlockLength() + 20, 4, text);
    Open("FILE.MES", bytes);
  }

  TranslationTable Table(int language, int origin = 0) const {
    return TableOf(set_, language, origin, Alphabet::Of(0));
  }
};

TEST_F(TableOfTest, HoldsEveryMessageBesideItsOrigin) {
  OpenMes("abcd", "efgh");
  const TranslationTable table = Table(1);
  EXPECT_EQ(table.name, "FILE.MES");
  EXPECT_EQ(table.source_language, "it");
  EXPECT_EQ(table.width, 4U);
  ASSERT_THAT(table.rows, SizeIs(3));
  EXPECT_EQ(table.rows[2].message, 2U);
  EXPECT_THAT(table.rows[0].origin, ElementsAre(TextRun{"abcd"}));
  EXPECT_THAT(table.rows[0].text, ElementsAre(TextRun{"efgh"}));
}

TEST_F(TableOfTest, TakesPlaceholdersApart) {
  OpenMes(
      "a\xFE\xFE"
      "b",
      "\xFE"
      "\xDF"
      "c\xFE");
  const TranslationRow row = Table(1).rows[0];
  EXPECT_THAT(row.origin, ElementsAre(TextRun{"a"}, TextRun{"þþ", true}, TextRun{"b"}));
  EXPECT_THAT(row.text, ElementsAre(TextRun{"þ", true}, TextRun{"°c"}, TextRun{"þ", true}));
  EXPECT_THAT(row.board_cells, ElementsAre(CellRange{1, 2}));
}

TEST_F(TableOfTest, NamesTheCellsOfTheBoardWhateverTheOriginIs) {
  OpenMes(
      "a\xFE"
      "cd",
      "efgh");
  EXPECT_THAT(Table(0, 1).rows[0].board_cells, ElementsAre(CellRange{1, 1}));
}

TEST_F(TableOfTest, MarksWhatIsBlankOrTheSame) {
  OpenMes("abcd", "abcd");
  EXPECT_TRUE(Table(1).rows[0].needs_translation);
  EXPECT_FALSE(Table(1).rows[1].needs_translation);
  OpenMes("abcd", "    ");
  EXPECT_TRUE(Table(1).rows[0].needs_translation);
  OpenMes("    ", "    ");
  EXPECT_FALSE(Table(1).rows[0].needs_translation);
}

TEST_F(TableOfTest, TakesBlankCellsOfTheBoardForPlaceholdersInAnMsxFile) {
  Open("FILE.MSX", test::MsxFile(1));
  // "Credito þ þþþþþþ" beside "L1 M0003".
  const TranslationRow row = Table(1).rows[3];
  EXPECT_THAT(row.origin, ElementsAre(TextRun{"Credito "}, TextRun{"þ", true}, TextRun{" "},
                                      TextRun{"þþþþþþ", true}));
  EXPECT_THAT(row.text, ElementsAre(TextRun{test::MsxMessage(1, 3).substr(0, 8)},
                                    TextRun{" ", true}, TextRun{" "}, TextRun{"      ", true}));
}

}  // namespace
}  // namespace vendlingua
