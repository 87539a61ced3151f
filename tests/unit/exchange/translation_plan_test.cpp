#include "core/exchange/translation_plan.h"

#include <gmock/gmock.h>

#include "core/formats/message_texts.h"
#include "support/engine_test.h"

namespace vendlingua {
namespace {

using Kind = TableProblem::Kind;
using test::MesFile;
using test::Text;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const TextRun kOne = {"þ", true};
const TextRun kTwo = {"þþ", true};

// A file of three messages of eight cells, the first of which the tests are about.
class PlanTest : public test::EngineTest {
 protected:
  void OpenMes(const std::string& reference, const std::string& present) {
    const MesFile file{.width = 8};
    std::string bytes = file.Bytes();
    bytes.replace(24 + 20, 8, reference);
    bytes.replace(24 + file.BlockLength() + 20, 8, present);
    Open("FILE.MES", bytes);
  }

  TranslationPlan Plan(const TextRuns& text, TableFormat format = TableFormat::kCsv,
                       PlanOptions options = {}) {
    TableReading reading;
    reading.table.format = format;
    reading.table.rows.push_back({2, 0, {}, text});
    return Plan(reading, options);
  }

  TranslationPlan Plan(const TableReading& reading, PlanOptions options = {}) {
    return PlanTranslation(set_, TextsOf(set_, 1), reading, Alphabet::Of(0), options);
  }

  // What a row stores, which must not be refused; empty for no change.
  std::string Stored(const TextRuns& text, TableFormat format = TableFormat::kCsv,
                     PlanOptions options = {}) {
    const TranslationPlan plan = Plan(text, format, options);
    EXPECT_THAT(plan.problems.listed(), IsEmpty());
    return plan.changes.empty() ? "" : Text(plan.changes.front().after);
  }

  std::optional<Kind> Refused(const TextRuns& text, TableFormat format = TableFormat::kCsv) {
    const TranslationPlan plan = Plan(text, format);
    EXPECT_THAT(plan.changes, IsEmpty());
    return plan.IsRefused() ? std::optional(plan.problems.listed().front().kind) : std::nullopt;
  }
};

TEST_F(PlanTest, TellsWhatAMessageHoldsBeforeAndAfter) {
  OpenMes("abcdefgh", "12345678");
  const TranslationPlan plan = Plan({{"new"}});
  ASSERT_THAT(plan.changes, SizeIs(1));
  EXPECT_EQ(plan.changes[0].message, 0U);
  EXPECT_EQ(Text(plan.changes[0].before), "12345678");
  EXPECT_EQ(Text(plan.changes[0].after), "new     ");
  EXPECT_THAT(plan.warnings, IsEmpty());
}

TEST_F(PlanTest, ChangesNothingByItself) {
  OpenMes("abcdefgh", "12345678");
  Plan({{"new"}});
  EXPECT_EQ(Text(TextsOf(set_, 1)[0].First(8)), "12345678");
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(PlanTest, LeavesWhatTheMessageHolds) {
  OpenMes(
      "a\xFE\xFE"
      "defgh",
      " x\xFE\xFE\xFE   ");
  EXPECT_EQ(Stored({{" xþþþ"}}), "");
  EXPECT_EQ(Stored({{" xþþþ   "}}), "");
  EXPECT_EQ(Stored({{" x"}, {"þþþ", true}, {"   "}}, TableFormat::kXliff), "");
  EXPECT_THAT(Plan({{" xþþþ"}}).warnings, IsEmpty());
}

TEST_F(PlanTest, LeavesAMessageThatReadsTheSameInWindows1252) {
  OpenMes("abcdefgh",
          "60\xDF"
          "C    ");
  EXPECT_EQ(Stored({{"60ßC"}}), "");
  EXPECT_EQ(Stored({{"60°C"}}), "");
}

TEST_F(PlanTest, LaysATextOutAroundTheBoardsCells) {
  OpenMes(
      "abcd\xFE"
      "f\xFE\xFE",
      "12345678");
  for (const TableFormat format : {TableFormat::kCsv, TableFormat::kXliff}) {
    EXPECT_EQ(Stored({{"x"}, kOne, {"y"}, kTwo}, format),
              "x   \xFE"
              "y\xFE\xFE");
    EXPECT_EQ(Stored({{"xþyþþ"}}, format),
              "x   \xFE"
              "y\xFE\xFE");
    EXPECT_EQ(Stored({{"x"}, kOne, kTwo}, format), "x   \xFE \xFE\xFE");
  }
}

TEST_F(PlanTest, RefusesWhatDoesNotFit) {
  OpenMes(
      "abcd\xFE"
      "f\xFE\xFE",
      "12345678");
  const TranslationPlan plan = Plan({{"xxxxx"}, kOne, {"y"}, kTwo});
  ASSERT_THAT(plan.problems.listed(), SizeIs(1));
  const TableProblem& problem = plan.problems.listed().front();
  EXPECT_EQ(problem.kind, Kind::kNoRoom);
  EXPECT_EQ(problem.place, 2U);
  EXPECT_EQ(problem.message, "0");
  EXPECT_EQ(problem.text, "xxxxx");
  EXPECT_EQ(problem.number, 5U);
  EXPECT_EQ(problem.limit, 4U);
  EXPECT_EQ(problem.first_cell, 0U);
  EXPECT_EQ(Refused({{"x"}, kOne, {"yy"}, kTwo}), Kind::kNoRoom);
  EXPECT_EQ(Refused({{"x"}, kOne, {"y"}, kTwo, {"z"}}), Kind::kNoRoom);
  EXPECT_EQ(Refused({{"xxxxxxxxx"}}), Kind::kTooWide);
}

TEST_F(PlanTest, RefusesCharactersThatTheDisplayLacksAndNamesThemAll) {
  OpenMes(
      "abc\xFE"
      "efgh",
      "12345678");
  const TranslationPlan plan = Plan({{"Жa"}, kOne, {"ЖЩ"}}, TableFormat::kXliff);
  ASSERT_THAT(plan.problems.listed(), SizeIs(1));
  EXPECT_EQ(plan.problems.listed()[0].kind, Kind::kNotDrawn);
  EXPECT_EQ(plan.problems.listed()[0].text, "ЖaþЖЩ");
  EXPECT_THAT(plan.problems.listed()[0].characters, ElementsAre("Ж", "Щ"));
}

TEST_F(PlanTest, WarnsWhereATableOvertypesTheBoardsCells) {
  OpenMes(
      "abcd\xFE\xFE"
      "gh",
      "1234\xFE\xFE"
      "78");
  const TranslationPlan plan = Plan({{"wxyzWXYZ"}});
  ASSERT_THAT(plan.warnings, SizeIs(1));
  EXPECT_EQ(plan.warnings[0].kind, PlanWarning::Kind::kOvertyped);
  EXPECT_EQ(plan.warnings[0].place, 2U);
  EXPECT_THAT(plan.warnings[0].cells, ElementsAre(CellRange{4, 2}));
  ASSERT_THAT(plan.changes, SizeIs(1));
  EXPECT_EQ(Text(plan.changes[0].after),
            "wxyz\xFE\xFE"
            "YZ");
}

TEST_F(PlanTest, WarnsAlsoWhereTheRestOfTheTextIsTheSame) {
  OpenMes(
      "abcd\xFE\xFE"
      "gh",
      "1234\xFE\xFE"
      "78");
  const TranslationPlan plan = Plan({{"12345678"}});
  EXPECT_THAT(plan.warnings, SizeIs(1));
  EXPECT_THAT(plan.changes, IsEmpty());
}

TEST_F(PlanTest, WarnsOfStrayPlaceholders) {
  OpenMes("abcdefgh", "12345678");
  const TranslationPlan plan = Plan({{"xþ"}});
  ASSERT_THAT(plan.warnings, SizeIs(1));
  EXPECT_EQ(plan.warnings[0].kind, PlanWarning::Kind::kStray);
  EXPECT_THAT(plan.warnings[0].cells, ElementsAre(CellRange{1, 1}));
  ASSERT_THAT(plan.changes, SizeIs(1));
  EXPECT_EQ(Text(plan.changes[0].after), "x\xFE      ");
}

TEST_F(PlanTest, PutsPlaceholdersBackWhereATextIsBlank) {
  OpenMes(
      "abcd\xFE\xFE"
      "gh",
      "12345678");
  EXPECT_EQ(Stored({{"x"}}), "x   \xFE\xFE  ");
  EXPECT_EQ(Stored({{"x     y"}}),
            "x   \xFE\xFE"
            "y ");
  EXPECT_THAT(Plan({{"x     y"}}).warnings, IsEmpty());
}

TEST_F(PlanTest, RefusesAnXliffTextWithoutPlaceholdersThatCoversTheirCells) {
  OpenMes(
      "abcd\xFE\xFE"
      "gh",
      "12345678");
  const TranslationPlan plan = Plan({{"wxyzW"}}, TableFormat::kXliff);
  ASSERT_THAT(plan.problems.listed(), SizeIs(1));
  EXPECT_EQ(plan.problems.listed()[0].kind, Kind::kCoversBoardCells);
  EXPECT_EQ(plan.problems.listed()[0].text, "cell 5");
  EXPECT_EQ(Stored({{"wxyz"}}, TableFormat::kXliff), "wxyz\xFE\xFE  ");
}

TEST_F(PlanTest, LeavesAMessageWhosePlaceholdersWereLostOnTheWay) {
  OpenMes(
      "\xFE\xFE"
      "cd\xFE"
      "fgh",
      "\xFE\xFE"
      "34\xFE"
      "  8");
  EXPECT_EQ(Stored({{"34  8"}}, TableFormat::kXliff), "");
  EXPECT_EQ(Stored({{"34  8"}}, TableFormat::kCsv), "\xFE\xFE  \xFE   ");
}

TEST_F(PlanTest, CentresWhatStandsCentredInTheReference) {
  OpenMes("  abcd  ", "12345678");
  const PlanOptions centre = {.centre = true};
  EXPECT_EQ(Stored({{"xyz"}}, TableFormat::kCsv, centre), "  xyz   ");
  EXPECT_EQ(Stored({{"      xyz"}}, TableFormat::kXliff, centre), "  xyz   ");
  EXPECT_EQ(Stored({{"xyz"}}), "xyz     ");
  EXPECT_EQ(Plan({{"123456789"}}, TableFormat::kCsv, centre).problems.listed().at(0).kind,
            Kind::kTooWide);
  OpenMes("abcd    ", "12345678");
  EXPECT_EQ(Stored({{"xyz"}}, TableFormat::kCsv, centre), "xyz     ");
}

TEST_F(PlanTest, RefusesMessagesThatTheFileDoesNotHave) {
  OpenMes("abcdefgh", "12345678");
  TableReading reading;
  reading.table.rows.push_back({2, 3, {}, {{"x"}}});
  const TranslationPlan plan = Plan(reading);
  ASSERT_THAT(plan.problems.listed(), SizeIs(1));
  EXPECT_EQ(plan.problems.listed()[0].kind, Kind::kNoSuchMessage);
  EXPECT_EQ(plan.problems.listed()[0].text, "3");
}

TEST_F(PlanTest, IsRefusedWhereTheTableIs) {
  OpenMes("abcdefgh", "12345678");
  TableReading reading;
  reading.problems.Add({.kind = Kind::kRepeated, .place = 9});
  reading.table.rows.push_back({2, 0, {}, {{"xxxxxxxxx"}}});
  const TranslationPlan plan = Plan(reading);
  EXPECT_TRUE(plan.IsRefused());
  EXPECT_THAT(plan.problems.listed(), SizeIs(2));
}

TEST_F(PlanTest, KeepsTheBoardsCellsOfAnMsxFileBlank) {
  Open("FILE.MSX", test::MsxFile(1));
  TableReading reading;
  reading.table.format = TableFormat::kXliff;
  // The built-in table has "Credito þ þþþþþþ" there.
  reading.table.rows.push_back({2, 3, {}, {{"Kredit"}, kOne, {" "}, {"þþþþþþ", true}}});
  const TranslationPlan plan = Plan(reading);
  ASSERT_THAT(plan.changes, SizeIs(1));
  EXPECT_EQ(Text(plan.changes[0].after), "Kredit          ");
}

TEST_F(PlanTest, TakesEveryCellOfAnMsxFileAndWarnsOfTheBoards) {
  Open("FILE.MSX", test::MsxFile(1));
  TableReading reading;
  reading.table.rows.push_back({2, 3, {}, {{"Kredit: 12345678"}}});
  const TranslationPlan plan = Plan(reading);
  ASSERT_THAT(plan.changes, SizeIs(1));
  EXPECT_EQ(Text(plan.changes[0].after), "Kredit: 12345678");
  ASSERT_THAT(plan.warnings, SizeIs(1));
  EXPECT_THAT(plan.warnings[0].cells, ElementsAre(CellRange{8, 1}, CellRange{10, 6}));
}

TEST_F(PlanTest, IsStoredInTheDestination) {
  OpenMes(
      "abcd\xFE\xFE"
      "gh",
      "12345678");
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  ApplyPlan(Plan({{"x"}}), set_);
  EXPECT_EQ(Destination(0), "x   \xFE\xFE  ");
  EXPECT_EQ(set_.Modified, kTrue);
}

}  // namespace
}  // namespace vendlingua
