#include "core/exchange/table_format.h"

#include <gtest/gtest.h>

namespace vendlingua {
namespace {

TEST(TableFormatTest, IsToldByTheExtensionInAnyCase) {
  for (const char* file : {"a.xliff", "a.XLIFF", "a.xlf", "a.b.Xlf"}) {
    EXPECT_EQ(FormatOf(file), TableFormat::kXliff) << file;
    EXPECT_TRUE(HasTableName(file)) << file;
  }
  for (const char* file : {"a.csv", "a.CSV", "a.txt", "xliff", ".xliff", "a.xliff.txt"}) {
    EXPECT_EQ(FormatOf(file), TableFormat::kCsv) << file;
  }
  EXPECT_TRUE(HasTableName("a.CSV"));
  EXPECT_FALSE(HasTableName("a.txt"));
  EXPECT_FALSE(HasTableName("csv"));
}

TEST(TableFormatTest, DecidesWhatIsWritten) {
  EXPECT_EQ(WriteTable(TranslationTable(), TableFormat::kCsv),
            "\"message\",\"origin\",\"text\"\r\n");
  EXPECT_EQ(WriteTable(TranslationTable(), TableFormat::kXliff).substr(0, 5), "<?xml");
}

}  // namespace
}  // namespace vendlingua
