#include "core/exchange/csv_table.h"

#include <gmock/gmock.h>

namespace vendlingua {
namespace {

using Kind = TableProblem::Kind;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const std::string kHeadings = "message,origin,text\r\n";

TableReading Read(const std::string& content) { return ReadCsv(content, DetectEncoding(content)); }

std::vector<Kind> KindsOf(const TableReading& reading) {
  std::vector<Kind> kinds;
  for (const TableProblem& problem : reading.problems.listed()) {
    kinds.push_back(problem.kind);
  }
  return kinds;
}

std::string Only(const TableReading& reading) {
  EXPECT_THAT(reading.problems.listed(), IsEmpty());
  EXPECT_THAT(reading.table.rows, SizeIs(1));
  return reading.table.rows.empty() ? "" : FlatText(reading.table.rows.front().text);
}

TEST(WriteCsv, WritesTheTextsCellByCell) {
  TranslationTable table;
  table.rows.push_back({1, 3, {{"Credito "}, {"þ", true}}, {{"Credit  "}, {"þ", true}}});
  table.rows.push_back({2, 4, {{"\"a\","}}, {}});
  EXPECT_EQ(WriteCsv(table),
            "\"message\",\"origin\",\"text\"\r\n"
            "\"3\",\"Credito þ\",\"Credit  þ\"\r\n"
            "\"4\",\"\"\"a\"\",\",\"\"\r\n");
}

TEST(ReadCsv, TakesNumberOriginAndText) {
  const TableReading reading = Read(kHeadings + "7,Pronto, Ready\r\n");
  ASSERT_THAT(reading.table.rows, SizeIs(1));
  const TranslationRow& row = reading.table.rows.front();
  EXPECT_EQ(row.place, 2U);
  EXPECT_EQ(row.message, 7U);
  EXPECT_EQ(FlatText(row.origin), "Pronto");
  EXPECT_EQ(FlatText(row.text), " Ready");
}

TEST(ReadCsv, TakesCommasSemicolonsAndTabs) {
  for (const char separator : {',', ';', '\t'}) {
    std::string content = "message,origin,text\r\n7,\"a,b;c\td\",new\r\n";
    content.replace(content.find(','), 1, 1, separator);
    content.replace(content.find(",text"), 1, 1, separator);
    content.replace(content.find("7,") + 1, 1, 1, separator);
    content.replace(content.find(",new"), 1, 1, separator);
    const TableReading reading = Read(content);
    EXPECT_EQ(Only(reading), "new");
    EXPECT_EQ(FlatText(reading.table.rows.front().origin), "a,b;c\td");
  }
}

TEST(ReadCsv, TakesEveryEncoding) {
  const std::string utf16 = "message\torigin\ttext\r\n1\t\tè\r\n";
  std::string little_endian = "\xFF\xFE";
  for (const char32_t character : std::u32string(U"message\torigin\ttext\r\n1\t\tè\r\n")) {
    little_endian += static_cast<char>(character);
    little_endian += '\0';
  }
  EXPECT_EQ(Only(Read(utf16)), "è");
  EXPECT_EQ(Only(Read(little_endian)), "è");
  EXPECT_EQ(Only(Read(kHeadings + "1,,\xE8\r\n")), "è");
}

TEST(ReadCsv, RefusesAnotherHeader) {
  for (const std::string content :
       {"", "\r\n", "1,,x\r\n", "message,origin\r\n", "Message,origin,text",
        "message|origin|text\r\n", "message,origin,text,more\r\n"}) {
    EXPECT_THAT(KindsOf(Read(content)), ElementsAre(Kind::kNoHeader)) << content;
  }
}

TEST(ReadCsv, RefusesRowsOneByOne) {
  const TableReading reading = Read(kHeadings +
                                    "1,,a\r\n"
                                    "2,x\r\n"
                                    "x,,b\r\n"
                                    "1,,c\r\n"
                                    "65536,,d\r\n"
                                    "65535,,e\r\n");
  EXPECT_THAT(KindsOf(reading), ElementsAre(Kind::kFieldCount, Kind::kNoSuchMessage,
                                            Kind::kRepeated, Kind::kNoSuchMessage));
  EXPECT_EQ(reading.problems.listed()[0].place, 3U);
  EXPECT_EQ(reading.problems.listed()[0].number, 2U);
  EXPECT_EQ(reading.problems.listed()[2].text, "1");
  EXPECT_THAT(reading.table.rows, SizeIs(2));
}

TEST(ReadCsv, RefusesMalformedQuotesAndNamesTheRow) {
  for (const std::string row : {"1,,\"x", "1,,\"x\"y", "1,,x\"y"}) {
    const TableReading reading = Read(kHeadings + "0,,a\r\n" + row + "\r\n2,,b\r\n");
    EXPECT_THAT(KindsOf(reading), ElementsAre(Kind::kBadQuotes)) << row;
    EXPECT_EQ(reading.problems.listed().front().number, 3U) << row;
  }
}

TEST(ReadCsv, RefusesAFieldThatIsLongerThanAnyMessage) {
  const TableReading reading = Read(kHeadings + "1,," + std::string(4097, 'x') + "\r\n2,,b\r\n");
  EXPECT_THAT(KindsOf(reading), ElementsAre(Kind::kFieldTooLong));
  EXPECT_THAT(reading.table.rows, SizeIs(1));
}

TEST(ReadCsv, GivesUpAFieldThatTakesInTheRestOfTheFile) {
  const TableReading reading = Read(kHeadings + "1,,\"" + std::string(1U << 20U, 'x') + "\"\r\n");
  EXPECT_THAT(KindsOf(reading), ElementsAre(Kind::kBadQuotes));
}

TEST(ReadCsv, ListsSoManyProblemsAndCountsTheRest) {
  std::string content = kHeadings;
  for (std::size_t i = 0; i < TableProblems::kMostListed + 7; ++i) {
    content += "x\r\n";
  }
  const TableReading reading = Read(content);
  EXPECT_THAT(reading.problems.listed(), SizeIs(TableProblems::kMostListed));
  EXPECT_EQ(reading.problems.more(), 7U);
}

TEST(ReadCsv, TakesNoMoreRowsThanThereCanBeMessages) {
  std::string content = kHeadings;
  for (int i = 0; i < 70'000; ++i) {
    content += std::to_string(i) + ",,x\r\n";
  }
  EXPECT_THAT(Read(content).table.rows, SizeIs(65'536));
}

}  // namespace
}  // namespace vendlingua
