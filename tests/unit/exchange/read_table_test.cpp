#include "core/exchange/read_table.h"

#include <gmock/gmock.h>

#include "xliff_test_units.h"

namespace vendlingua {
namespace {

using Kind = TableProblem::Kind;
using ::testing::SizeIs;
using namespace std::string_literals;

TEST(ReadTable, TellsTheFormatFromTheContent) {
  const TableReading csv = ReadTable("message,origin,text\n1,,<a>\n");
  EXPECT_EQ(csv.table.format, TableFormat::kCsv);
  EXPECT_THAT(csv.table.rows, SizeIs(1));
  for (const std::string before : {"", "\xEF\xBB\xBF", "\r\n  "}) {
    std::string xml = test::Xliff(test::Unit("1", "", "a"));
    if (!before.empty()) {
      xml.erase(0, xml.find('\n') + 1);  // a declaration stands first
    }
    const TableReading xliff = ReadTable(before + xml);
    EXPECT_EQ(xliff.table.format, TableFormat::kXliff);
    EXPECT_THAT(xliff.table.rows, SizeIs(1));
  }
}

TEST(ReadTable, TellsTheFormatOfUtf16) {
  EXPECT_EQ(ReadTable("\xFF\xFE<\0a\0/\0>\0"s).problems.listed().front().kind, Kind::kNoXliff);
  EXPECT_EQ(ReadTable("\xFE\xFF\0<\0a\0/\0>"s).problems.listed().front().kind, Kind::kNoXliff);
}

TEST(ReadTable, RefusesWhatIsNoText) {
  EXPECT_EQ(ReadTable("\x1F\x0F\0"s).problems.listed().front().kind, Kind::kNotText);
  EXPECT_EQ(ReadTable("").problems.listed().front().kind, Kind::kNoHeader);
}

}  // namespace
}  // namespace vendlingua
