#include "core/compare/message_files.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/compare/most_differences.h"
#include "core/formats/message_file.h"
#include "support/message_files.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::string FieldText(const FieldValue& value) {
  if (const bool* flag = std::get_if<bool>(&value)) {
    return *flag ? "true" : "false";
  }
  const std::string* text = std::get_if<std::string>(&value);
  return text != nullptr ? *text : std::to_string(std::get<std::uint32_t>(value));
}

class CompareMessageFilesTest : public testing::Test {
 protected:
  CompareMessageFilesTest() {
    a_.names = {"Default", "ITALIANO", "ENGLISH"};
    b_ = a_;
  }

  MessageFileComparison Compare(std::string_view a, std::string_view b) const {
    return CompareMessageFiles(ReadMessageFile(folder_.Write("A.MES", a)),
                               ReadMessageFile(folder_.Write("B.MES", b)));
  }
  MessageFileComparison Compare() const { return Compare(a_.Bytes(), b_.Bytes()); }

  static std::vector<std::string> Fields(const MessageFileComparison& comparison) {
    std::vector<std::string> fields;
    for (const auto& [field, a, b] : comparison.header) {
      fields.push_back(std::string(field) + " " + FieldText(a) + " " + FieldText(b));
    }
    return fields;
  }

  static std::vector<std::string> Languages(const std::vector<NumberedLanguage>& languages) {
    std::vector<std::string> texts;
    for (const auto& [number, name] : languages) {
      texts.push_back(std::to_string(number) + " " + name);
    }
    return texts;
  }

  static std::vector<std::string> Messages(const MessageFileComparison& comparison) {
    std::vector<std::string> texts;
    for (const auto& [language, message, a, b] : comparison.messages) {
      texts.push_back(std::to_string(language) + "/" + std::to_string(message) + " " +
                      (a ? test::Text(*a) : "-") + " " + (b ? test::Text(*b) : "-"));
    }
    return texts;
  }

  test::TemporaryFolder folder_;
  test::MesFile a_;
  test::MesFile b_;
};

TEST_F(CompareMessageFilesTest, FindsNoDifferenceInTheSameFile) {
  const MessageFileComparison comparison = Compare();
  EXPECT_TRUE(comparison.Same());
  EXPECT_THAT(Fields(comparison), IsEmpty());
  EXPECT_THAT(Messages(comparison), IsEmpty());
}

TEST_F(CompareMessageFilesTest, ComparesTheHeader) {
  b_.lang_count = 3;
  b_.flags = "07";
  b_.header_count = "0002";
  b_.mem_start = "00FF8000";
  const MessageFileComparison comparison = Compare();
  EXPECT_FALSE(comparison.Same());
  EXPECT_THAT(Fields(comparison),
              ElementsAre("langCount 2 3", "headerBit1 false true", "headerBit0 false true",
                          "displayType 0 1", "headerCount 1 2", "memStart 24576 16744448",
                          "memLength 24 36"));
}

TEST_F(CompareMessageFilesTest, ListsMessagesThatReadOtherwise) {
  std::string content = b_.Bytes();
  const std::size_t english = 24 + 2 * b_.BlockLength() + 20;
  content.replace(english + 4, 4, "Wait");
  content.replace(english + 8, 4, "Stop");
  const MessageFileComparison comparison = Compare(a_.Bytes(), content);
  EXPECT_FALSE(comparison.Same());
  EXPECT_THAT(Messages(comparison), ElementsAre("2/1 2111 Wait", "2/2 2222 Stop"));
}

TEST_F(CompareMessageFilesTest, DoesNotLookAtUnusedSlots) {
  std::string content = b_.Bytes();
  content.replace(content.size() - 4, 4, "....");
  content.back() = 'x';
  EXPECT_TRUE(Compare(a_.Bytes(), content).Same());
}

TEST_F(CompareMessageFilesTest, ListsMessagesThatOneFileLacks) {
  b_.last_msg = 3;
  const MessageFileComparison comparison = Compare();
  EXPECT_THAT(Fields(comparison), ElementsAre("lastMsg 2 3"));
  EXPECT_THAT(Messages(comparison), ElementsAre("0/3 - 0333", "1/3 - 1333", "2/3 - 2333"));
}

TEST_F(CompareMessageFilesTest, ListsLanguagesThatOneFileLacks) {
  b_.names = {"Default", "ITALIANO"};
  EXPECT_THAT(Languages(Compare().removed), ElementsAre("2 ENGLISH"));
  b_.names = {"Default", "ITALIANO", "ENGLISH", "POLSKI"};
  const MessageFileComparison comparison = Compare();
  EXPECT_FALSE(comparison.Same());
  EXPECT_THAT(Languages(comparison.added), ElementsAre("3 POLSKI"));
  EXPECT_THAT(Languages(comparison.removed), IsEmpty());
}

TEST_F(CompareMessageFilesTest, KnowsARenamedLanguageByItsNumber) {
  b_.names[2] = "ENGLISH UK";
  const MessageFileComparison comparison = Compare();
  ASSERT_THAT(comparison.renamed, SizeIs(1));
  EXPECT_EQ(comparison.renamed[0].number, 2);
  EXPECT_EQ(comparison.renamed[0].a, "ENGLISH");
  EXPECT_EQ(comparison.renamed[0].b, "ENGLISH UK");
  EXPECT_FALSE(comparison.Same());
  EXPECT_THAT(comparison.added, IsEmpty());
  EXPECT_THAT(Messages(comparison), IsEmpty());
}

TEST_F(CompareMessageFilesTest, KnowsAMovedLanguageByItsName) {
  b_.names = {"Default", "ENGLISH", "ITALIANO"};
  const MessageFileComparison comparison = Compare();
  ASSERT_THAT(comparison.moved, SizeIs(2));
  EXPECT_EQ(comparison.moved[0].name, "ITALIANO");
  EXPECT_EQ(comparison.moved[0].a, 1);
  EXPECT_EQ(comparison.moved[0].b, 2);
  EXPECT_FALSE(comparison.Same());
  EXPECT_THAT(comparison.renamed, IsEmpty());
  EXPECT_THAT(Messages(comparison), ElementsAre("1/0 1000 2000", "1/1 1111 2111", "1/2 1222 2222",
                                                "2/0 2000 1000", "2/1 2111 1111", "2/2 2222 1222"));
}

TEST_F(CompareMessageFilesTest, KeepsLanguagesOfOneNameAtTheirNumbers) {
  a_.names = {"Default", "ENGLISH", "ENGLISH"};
  b_.names = a_.names;
  EXPECT_TRUE(Compare().Same());
  b_.names = {"Default", "ENGLISH"};
  EXPECT_THAT(Languages(Compare().removed), ElementsAre("2 ENGLISH"));
}

TEST_F(CompareMessageFilesTest, IgnoresBlanksBehindAText) {
  b_.width = 6;
  std::string content = b_.Bytes();
  for (std::size_t block = 0; block < 3; ++block) {
    for (std::size_t message = 0; message < 3; ++message) {
      const std::size_t at = 24 + block * b_.BlockLength() + 20 + message * 6;
      content.replace(at, 6, a_.Message(block, message) + "  ");
    }
  }
  const MessageFileComparison comparison = Compare(a_.Bytes(), content);
  EXPECT_THAT(Fields(comparison), ElementsAre("lastCol 3 5", "memLength 24 36"));
  EXPECT_THAT(Messages(comparison), IsEmpty());
}

TEST_F(CompareMessageFilesTest, ComparesAllCellsOfWideMessages) {
  a_.width = 60;
  b_.width = 60;
  std::string content = b_.Bytes();
  content[24 + 20 + 59] = '!';
  EXPECT_THAT(Messages(Compare(a_.Bytes(), content)),
              ElementsAre("0/0 " + a_.Message(0, 0) + " " + a_.Message(0, 0).substr(0, 59) + "!"));
}

TEST_F(CompareMessageFilesTest, TakesPlaceholdersForTheBlanksOfAnMsxFile) {
  // The built-in table has placeholders, the first language of the copy blanks.
  const MessageSet msx = ReadMessageFile(folder_.Write("A.MSX", test::MsxFile(1)));
  test::MesFile mes;
  mes.width = 16;
  mes.last_msg = 454;
  mes.stride = 455;
  mes.lang_count = 9;
  mes.names = {"Default"};
  std::string content = mes.Bytes();
  for (std::size_t i = 0; i < 455; ++i) {
    content.replace(24 + 20 + 16 * i, 16, test::Text(BuiltInMessages().at(i)));
  }
  std::replace(content.begin() + 44, content.end(), '\xFE', ' ');
  const MessageSet set = ReadMessageFile(folder_.Write("B.MES", content));
  EXPECT_THAT(CompareMessageFiles(msx, set).messages, IsEmpty());
}

TEST_F(CompareMessageFilesTest, CountsWhatItDoesNotList) {
  // 101 languages of 1,000 messages.
  a_.width = 1;
  a_.lang_count = 1;
  a_.stride = 1000;
  a_.last_msg = 999;
  a_.names = {"Default"};
  for (int k = 1; k <= 100; ++k) {
    a_.names.push_back("N" + std::to_string(k));
  }
  std::string content = a_.Bytes();
  for (std::size_t block = 0; block <= 100; ++block) {
    content.replace(24 + block * a_.BlockLength() + 20, 1000, std::string(1000, '!'));
  }
  const MessageFileComparison comparison = Compare(a_.Bytes(), content);
  EXPECT_THAT(comparison.messages, SizeIs(kMostDifferences));
  EXPECT_EQ(comparison.unlisted, 101 * 1000 - kMostDifferences);
}

TEST_F(CompareMessageFilesTest, ReadsBlanksBehindTheEndOfAFile) {
  const std::string content = b_.Bytes();
  const MessageFileComparison comparison =
      Compare(a_.Bytes(), content.substr(0, content.size() - 4 - 1));
  EXPECT_THAT(Messages(comparison), ElementsAre("2/2 2222 222 "));
}

}  // namespace
}  // namespace vendlingua
