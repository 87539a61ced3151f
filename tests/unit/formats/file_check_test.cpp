#include "core/formats/file_check.h"

#include <gmock/gmock.h>

#include "core/platform/change_record.h"
#include "core/platform/errors.h"
#include "support/message_files.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

using test::MesFile;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

Findings Check(std::string_view content) {
  const test::TemporaryFolder folder;
  return CheckFile(folder.Write("FILE.MES", content));
}

TEST(CheckFile, FindsNothingInASoundMesFile) { EXPECT_THAT(Check(MesFile().Bytes()), IsEmpty()); }

TEST(CheckFile, FindsNothingInASoundSRecordFile) {
  EXPECT_THAT(Check(test::S2Line(0xFF0000, "0123456789ABCDEF") + "\r\n"), IsEmpty());
}

TEST(CheckFile, TellsTheTypesByTheFirstByteAndNotByTheName) {
  EXPECT_THAT(Check(MesFile{.lang_count = 31}.Bytes()), IsEmpty());
  EXPECT_THAT(Check(MesFile{.lang_count = 32}.Bytes()), Contains(HasSubstr("line 1: ")));
}

TEST(CheckFile, FindsNothingWhenTheLastBlockEndsWithItsLastMessage) {
  const std::string bytes = MesFile().Bytes();
  EXPECT_THAT(Check(bytes.substr(0, bytes.size() - 4)), IsEmpty());
}

TEST(CheckFile, FindsNothingInAFileOf100Languages) {
  MesFile file;
  while (file.names.size() <= 100) {
    file.names.push_back("LANGUAGE " + std::to_string(file.names.size()));
  }
  EXPECT_THAT(Check(file.Bytes()), IsEmpty());
}

TEST(CheckFile, ReportsAnEmptyFile) { EXPECT_THAT(Check(""), ElementsAre("the file is empty")); }

TEST(CheckFile, ReportsMessagesOfNulBytes) {
  std::string bytes = MesFile().Bytes();
  EXPECT_THAT(Check(bytes.replace(84, 8, std::string(8, '\0'))),
              ElementsAre("language 1: 2 of its messages are NUL bytes, the first is message 1"));
}

// A block that was given room, but never its bytes.
TEST(CheckFile, ReportsALanguageOfNulBytes) {
  EXPECT_THAT(Check(MesFile().Bytes() + std::string(36, '\0')),
              ElementsAre("language 2 has no name",
                          "language 2: 3 of its messages are NUL bytes, the first is message 0"));
}

TEST(CheckFile, MindsNoNulBytesBehindTheLastMessage) {
  std::string bytes = MesFile().Bytes();
  EXPECT_THAT(Check(bytes.replace(92, 4, std::string(4, '\0'))), IsEmpty());
}

TEST(CheckFile, ReportsASaveThatWasInterrupted) {
  const test::TemporaryFolder folder;
  const std::string before = MesFile().Bytes();
  std::string after = before;
  after.replace(80, 4, "ABCD");
  folder.Write("~FILE.MES.undo", ComposeRecord(RecordOf(before, after)));
  EXPECT_THAT(CheckFile(folder.Write("FILE.MES", std::string(after).replace(80, 2, "10"))),
              ElementsAre(HasSubstr("interrupted")));
  EXPECT_THAT(CheckFile(folder.Write("FILE.MES", after)), IsEmpty());
}

TEST(CheckFile, ReportsAHeaderThatIsCut) {
  EXPECT_THAT(Check(MesFile().Bytes().substr(0, 23)), ElementsAre(HasSubstr("23 bytes")));
}

TEST(CheckFile, ReportsAHeaderFieldThatIsNotHexadecimal) {
  EXPECT_THAT(Check(MesFile{.mem_start = "0000G000"}.Bytes()),
              ElementsAre(testing::AllOf(HasSubstr("MemStart"), HasSubstr("position 13"),
                                         HasSubstr("0000G000"))));
}

TEST(CheckFile, ReportsZeroLanguages) {
  EXPECT_THAT(Check(MesFile{.lang_count = 0}.Bytes()),
              ElementsAre(HasSubstr("the number of languages is 0")));
}

TEST(CheckFile, TakesWideAndLongSets) {
  EXPECT_THAT(Check(MesFile{.width = 41}.Bytes()), IsEmpty());
  EXPECT_THAT(Check(MesFile{.last_msg = 600, .stride = 601}.Bytes()), IsEmpty());
}

TEST(CheckFile, ReportsMoreMessagesThanABlockHasSlots) {
  EXPECT_THAT(Check(MesFile{.last_msg = 4}.Bytes()),
              Contains("LastMsg is 4, but a language block has only 4 message slots"));
}

TEST(CheckFile, ReportsLanguagesThatDoNotFitTheMemory) {
  EXPECT_THAT(Check(MesFile{.last_msg = 3}.Bytes()),
              ElementsAre("2 languages of 4 messages do not fit the message memory of 24 bytes"));
}

TEST(CheckFile, ReportsANameMessageBehindTheLastMessage) {
  EXPECT_THAT(Check(MesFile{.header_count = "0003"}.Bytes()),
              ElementsAre("HeaderCount is 3, but the last message is number 2"));
}

// 16 x (4095 + 1) + 20 is 65556, which wraps to 20.
TEST(CheckFile, ReportsABlockLengthThatWraps) {
  EXPECT_THAT(Check(MesFile{.lang_count = 1, .width = 16, .stride = 4095}.Bytes()),
              ElementsAre("the block length wraps to 20 bytes: language blocks overlap"));
}

// 16 x (2048 + 1) + 20 is 32804, which wraps to -32732.
TEST(CheckFile, ReportsABlockLengthThatBecomesNegative) {
  EXPECT_THAT(Check(MesFile{.lang_count = 1, .width = 16, .stride = 2048}.Bytes()),
              ElementsAre("the block length wraps to -32732 bytes: language blocks overlap"));
}

TEST(CheckFile, ReportsAFileWithoutBlocks) {
  const std::string reason = "the file ends before the name of its first language block";
  EXPECT_THAT(Check(MesFile().Bytes().substr(0, 24)), ElementsAre(reason));
  EXPECT_THAT(Check(MesFile().Bytes().substr(0, 43)), ElementsAre(reason));
}

TEST(CheckFile, ReportsALastBlockThatIsCut) {
  const std::string bytes = MesFile().Bytes();  // 24 + 2 x 36
  EXPECT_THAT(Check(bytes.substr(0, bytes.size() - 5)),
              ElementsAre("the file has 91 bytes, but the messages of language 1 end at byte 92"));
}

TEST(CheckFile, ReportsBytesBehindTheLastBlock) {
  EXPECT_THAT(Check(MesFile().Bytes() + "x"),
              ElementsAre("bytes that are no language block stand behind the last one"));
}

TEST(CheckFile, ReportsMoreThan100Languages) {
  MesFile file;
  while (file.names.size() <= 101) {
    file.names.push_back("LANGUAGE " + std::to_string(file.names.size()));
  }
  EXPECT_THAT(Check(file.Bytes()), ElementsAre("the file has more than 100 languages"));
}

TEST(CheckFile, ReportsAReferenceBlockWithAnotherName) {
  EXPECT_THAT(Check(MesFile{.names = {"ITALIANO", "ENGLISH"}}.Bytes()),
              ElementsAre("the reference block is named \"ITALIANO\" instead of \"Default\""));
}

TEST(CheckFile, ReportsALanguageWithoutAName) {
  EXPECT_THAT(Check(MesFile{.names = {"Default", ""}}.Bytes()),
              ElementsAre("language 1 has no name"));
}

TEST(CheckFile, ReportsANameThatTwoLanguagesHave) {
  EXPECT_THAT(Check(MesFile{.names = {"Default", "ITALIANO", "ENGLISH", "ITALIANO"}}.Bytes()),
              ElementsAre("language 3 has the name \"ITALIANO\" of a language before it"));
}

TEST(CheckFile, AllowsALanguageTheNameOfTheReferenceBlock) {
  EXPECT_THAT(Check(MesFile{.names = {"Default", "Default"}}.Bytes()), IsEmpty());
}

TEST(CheckFile, FindsEveryMesFileThatIsCut) {
  const std::string bytes = MesFile().Bytes();
  constexpr std::size_t kEndOfLastMessage = 24 + 36 + 20 + 3 * 4;
  for (std::size_t length = 0; length < kEndOfLastMessage; ++length) {
    // A file that ends before its second block may have been saved so.
    const bool holds_one_block = length >= 24 + 20 + 3 * 4 && length <= 24 + 36;
    EXPECT_EQ(Check(bytes.substr(0, length)).empty(), holds_one_block) << length;
  }
}

TEST(CheckFile, ThrowsForAMissingFile) {
  const test::TemporaryFolder folder;
  EXPECT_THROW(CheckFile(folder / "MISSING.MES"), FileError);
}

TEST(CheckFile, ThrowsForAFolder) {
  const test::TemporaryFolder folder;
  EXPECT_THROW(CheckFile(folder.path()), FileError);
}

}  // namespace
}  // namespace vendlingua
