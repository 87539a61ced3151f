#include <gmock/gmock.h>

#include "core/flash/flash_compiler.h"
#include "unit/flash/flash_compiler_test.h"

namespace vendlingua {
namespace {

using test::Lines;
using test::Slurp;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class MsxSourceTest : public test::FlashCompilerTest {
 protected:
  // Opens a sound file and puts `content` in its place on the disk.
  void OpenMsxSource(std::string_view content) {
    Open("SOURCE.MSX", test::MsxFile(1));
    folder_.Write("SOURCE.MSX", content);
  }

  static std::string NumberedLines(std::size_t count) {
    std::string lines;
    for (std::size_t i = 0; i < count; ++i) {
      lines += "S9 line " + std::to_string(i) + "\r\n";
    }
    return lines;
  }
};

TEST_F(MsxSourceTest, CompilesTenLinesToNineAndEmptyOnes) {
  OpenMsxSource(NumberedLines(10));
  Compile({}, folder_ / "F.MHX");
  const auto lines = Lines(Slurp(folder_ / "F.MHX"));
  ASSERT_THAT(lines, SizeIs(4095));
  EXPECT_EQ(lines[0], "S9 line 1");
  EXPECT_EQ(lines[8], "S9 line 9");
  for (std::size_t i = 9; i < lines.size(); ++i) {
    EXPECT_EQ(lines[i], "");
  }
}

TEST_F(MsxSourceTest, EndsAfter4095Lines) {
  OpenMsxSource(NumberedLines(4099));
  Compile({}, folder_ / "F.MHX");
  const auto lines = Lines(Slurp(folder_ / "F.MHX"));
  ASSERT_THAT(lines, SizeIs(4095));
  EXPECT_EQ(lines.back(), "S9 line 4095");
}

TEST_F(MsxSourceTest, RefusesMoreThan4099Lines) {
  OpenMsxSource(NumberedLines(4100));
  EXPECT_THAT(ReasonOfRefusal({}, folder_ / "F.MHX"),
              testing::AllOf(HasSubstr("SOURCE.MSX"), HasSubstr("4099")));
  EXPECT_EQ(folder_.Names(), "SOURCE.MSX");
  ExpectReady();
}

TEST_F(MsxSourceTest, TakesLinesThatEndInLfAndALastLineWithoutEnd) {
  OpenMsxSource("S0\nS9 one\nS9 two");
  Compile({}, folder_ / "F.MHX");
  const auto lines = Lines(Slurp(folder_ / "F.MHX"));
  ASSERT_THAT(lines, SizeIs(4095));
  EXPECT_EQ(lines[0], "S9 one");
  EXPECT_EQ(lines[1], "S9 two");
  EXPECT_EQ(lines[2], "");
}

TEST_F(MsxSourceTest, CompilesAHeaderAloneToEmptyLines) {
  OpenMsxSource("S0\r\n");
  Compile({}, folder_ / "F.MHX");
  EXPECT_EQ(Lines(Slurp(folder_ / "F.MHX")), std::vector<std::string>(4095));
}

TEST_F(MsxSourceTest, CompilesAnEmptyFileToEmptyLines) {
  OpenMsxSource("");
  Compile({}, folder_ / "F.MHX");
  EXPECT_EQ(Lines(Slurp(folder_ / "F.MHX")), std::vector<std::string>(4095));
}

TEST_F(MsxSourceTest, WritesNoCopy) {
  OpenMsxSource(test::MsxFile(1));
  const CompileOutcome outcome = Compile({}, folder_ / "FW0417AB.MHX");
  EXPECT_THAT(dialogs_.save_requests, SizeIs(1));
  EXPECT_FALSE(std::filesystem::exists(folder_ / "FW0417AB.MSX"));
  EXPECT_TRUE(outcome.completed);
}

// The empty lines behind the records are no S-records.
TEST_F(MsxSourceTest, ReadsTheFlashFileBackUpToItsFirstEmptyLine) {
  OpenMsxSource(test::MsxFile(1));
  Compile({}, folder_ / "F.MHX");
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kExclamation);
  EXPECT_EQ(engine_.section_files.SectionUsed()[0], 455 * 16);
  EXPECT_TRUE(std::filesystem::exists(folder_ / "F.mtx"));
  ExpectReady();
}

TEST_F(MsxSourceTest, CutsNineLanguagesIntoSections) {
  Open("SOURCE.MSX", test::MsxFile(9));
  Compile({}, folder_ / "F.MHX");
  EXPECT_THAT(dialogs_.messages, IsEmpty());
  EXPECT_EQ(Slurp(folder_ / "F.SA1").size(), 0x2000U);
  EXPECT_EQ(Slurp(folder_ / "F.SA1").substr(0, 16), test::MsxMessage(5, 228));  // 0x8000 / 16
}

TEST_F(MsxSourceTest, TellsOfDamagedRecordsAndCompilesThem) {
  std::string content = test::MsxFile(1);
  // The last digit of the checksum of message 1, in the third line.
  char& digit = content[test::kMsxHeaderLine + 2 * test::kMsxLine - 3];
  digit = digit == '0' ? '1' : '0';
  OpenMsxSource(content);
  const CompileOutcome outcome = Compile({}, folder_ / "F.MHX");
  ASSERT_THAT(outcome.damaged_records, SizeIs(1));
  EXPECT_EQ(outcome.damaged_records[0].line, 3U);
  EXPECT_THAT(outcome.damaged_records[0].damage, HasSubstr("the checksum is "));
  EXPECT_THAT(Slurp(folder_ / "F.MHX"), testing::StartsWith(content.substr(test::kMsxHeaderLine)));
}

}  // namespace
}  // namespace vendlingua
