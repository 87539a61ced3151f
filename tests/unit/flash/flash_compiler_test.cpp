#include "core/flash/flash_compiler.h"

#include <gmock/gmock.h>

#include "unit/flash/flash_compiler_test.h"

namespace vendlingua {
namespace {

using test::FlashCompilerTest;
using test::HexOf;
using test::Joined;
using test::kHighRecords;
using test::kLowRecords;
using test::Lines;
using test::Slurp;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

TEST_F(FlashCompilerTest, AsksForAHexFile) {
  OpenHexFile();
  Compile({1, 2}, folder_ / "F.hex");
  ASSERT_THAT(dialogs_.save_requests, SizeIs(1));
  EXPECT_EQ(dialogs_.save_requests[0].purpose, FilePurpose::kFlashFile);
  EXPECT_EQ(dialogs_.save_requests[0].initial_name, "*.hex");
  EXPECT_EQ(dialogs_.save_requests[0].default_extension, "hex");
  EXPECT_THAT(dialogs_.save_requests[0].filters,
              testing::ElementsAre(FileFilter{"Flash File", "hex"}));
  EXPECT_TRUE(dialogs_.save_requests[0].overwrite_prompt);
}

TEST_F(FlashCompilerTest, AsksForAMhxFileInTheSdataFamily) {
  OpenMhxFile();
  Compile({1, 2}, folder_ / "F.MHX");
  ASSERT_THAT(dialogs_.save_requests, SizeIs(1));
  EXPECT_EQ(dialogs_.save_requests[0].initial_name, "*.MHX");
  EXPECT_EQ(dialogs_.save_requests[0].default_extension, "MHX");
  EXPECT_THAT(dialogs_.save_requests[0].filters,
              testing::ElementsAre(FileFilter{"Flash File", "MHX"}));
}

TEST_F(FlashCompilerTest, StartsInTheFolderOfTheProgram) {
  OpenHexFile();
  engine_.workspace.folders.program = "/program";
  Compile({1, 2}, folder_ / "F.hex");
  EXPECT_EQ(dialogs_.save_requests.at(0).folder, "/program");
}

TEST_F(FlashCompilerTest, DisablesItsButtonsBeforeItAsks) {
  OpenHexFile();
  dialogs_.while_asking_for_file = [this] {
    EXPECT_TRUE(compiler_.busy);
    EXPECT_FALSE(compiler_.hourglass);
  };
  Compile({1, 2}, folder_ / "F.hex");
}

TEST_F(FlashCompilerTest, LetsPendingEventsRunOnceUnderTheHourglass) {
  OpenHexFile();
  dialogs_.while_pending_events_run = [this] { ExpectBusy(); };
  Compile({1, 2}, folder_ / "F.hex");
  EXPECT_EQ(dialogs_.pending_event_runs, 1);
}

TEST_F(FlashCompilerTest, IsReadyAgainAtTheEnd) {
  OpenHexFile();
  EXPECT_TRUE(Compile({1, 2}, folder_ / "F.hex").completed);
  ExpectReady();
}

TEST_F(FlashCompilerTest, StopsWhenNoFlashFileIsChosen) {
  OpenHexFile();
  const CompileOutcome outcome = Compile({1, 2}, "");
  EXPECT_FALSE(outcome.completed);
  EXPECT_THAT(outcome.written, IsEmpty());
  EXPECT_EQ(folder_.Names(), "SET.MES");
  ExpectReady();
}

// The names that the dialogs of both families start with, as they stand or in a folder.
TEST_F(FlashCompilerTest, StopsWhenAWildcardIsKeptOrTyped) {
  for (const bool is_mhx : {false, true}) {
    is_mhx ? OpenMhxFile() : OpenHexFile();
    for (const std::string wildcard : {"*.hex", "*.MHX"}) {
      for (const auto& answer : {std::filesystem::path(wildcard), folder_ / wildcard}) {
        const CompileOutcome outcome = Compile({1, 2}, answer);
        EXPECT_FALSE(outcome.completed);
        EXPECT_THAT(outcome.written, IsEmpty());
        EXPECT_EQ(folder_.Names(), "SET.MES");
        ExpectReady();
      }
    }
  }
}

TEST_F(FlashCompilerTest, WritesS1RecordsForALowStart) {
  OpenHexFile();
  Compile({1, 2}, folder_ / "F.hex");
  EXPECT_EQ(Slurp(folder_ / "F.hex"), kLowRecords);
}

TEST_F(FlashCompilerTest, WritesS2RecordsForAHighStart) {
  OpenMhxFile();
  Compile({1, 2}, folder_ / "F.MHX");
  EXPECT_EQ(Slurp(folder_ / "F.MHX"), kHighRecords);
}

// The start alone decides: an address of five digits does not make S2 records.
TEST_F(FlashCompilerTest, KeepsS1WhenTheAddressesPassFFFF) {
  file_.mem_start = "0000FFFF";
  OpenHexFile();
  Compile({1, 2}, folder_ / "F.hex");
  // 0B + 10 + 0F and the data 18D are 1B7, complemented 48.
  EXPECT_EQ(Lines(Slurp(folder_ / "F.hex")).at(1), "S10B1000F323131313232323248");
}

TEST_F(FlashCompilerTest, ChoosesS2FromStart10000) {
  file_.mem_start = "00010000";
  OpenHexFile();
  Compile({1, 2}, folder_ / "F.hex");
  // 14 + 10 and the data 30E are 332, complemented CD.
  EXPECT_EQ(Lines(Slurp(folder_ / "F.hex")).at(0), "S2141000031303030313131313132323232303030CD");
}

TEST_F(FlashCompilerTest, WritesAddressesBeyond32BitsAsTheyCome) {
  file_.mem_start = "FFFFFFFF";
  OpenHexFile();
  Compile({1, 2}, folder_ / "F.hex");
  const auto lines = Lines(Slurp(folder_ / "F.hex"));
  EXPECT_THAT(lines.at(0), StartsWith("S214FFFFFFFF31"));
  EXPECT_THAT(lines.at(1), StartsWith("S20C10000000F32"));
}

TEST_F(FlashCompilerTest, ReplacesAFlashFileThatIsThere) {
  folder_.Write("F.hex", std::string(1000, 'x'));
  OpenHexFile();
  Compile({1, 2}, folder_ / "F.hex");
  EXPECT_EQ(Slurp(folder_ / "F.hex"), kLowRecords);
}

TEST_F(FlashCompilerTest, CompilesTheFileOnDiskAndNoUnsavedEdits) {
  OpenHexFile();
  engine_.workspace.set.DestText[0] = DisplayText(test::Codes("edit"));
  engine_.workspace.set.Modified = kTrue;
  Compile({1, 2}, folder_ / "FW0417AB.hex");
  EXPECT_EQ(Slurp(folder_ / "FW0417AB.hex"), kLowRecords);
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(FlashCompilerTest, PacksTheTickedLanguagesInAscendingOrder) {
  OpenHexFile();
  Compile({3, 1}, folder_ / "F.hex");
  EXPECT_THAT(Slurp(folder_ / "F.hex"), HasSubstr(HexOf("1000111112223000")));
}

TEST_F(FlashCompilerTest, WritesABlankForAPlaceholder) {
  file_.flags = "01";
  std::string bytes = file_.Bytes();
  bytes.replace(24 + 36 + 20, 4, "\xFE\xFE\xFE\xFE");
  Open("SET.MES", bytes);
  Compile({1, 2}, folder_ / "F.hex");
  EXPECT_THAT(Slurp(folder_ / "F.hex"), StartsWith("S113600020202020" + HexOf("1111")));
}

TEST_F(FlashCompilerTest, ListsTheLanguageNamesForAFirmwareWithoutTheLabel) {
  OpenMes();
  Compile({1, 2}, folder_ / "F.hex");
  EXPECT_EQ(Slurp(folder_ / "F.hex"),
            Joined({"S11360003130303031313131323131313230303080", "S10B60103131313132313131FB"}));
}

TEST_F(FlashCompilerTest, KeepsTheImageBetweenRuns) {
  OpenHexFile();
  Compile({1, 2}, folder_ / "F.hex");
  Compile({3}, folder_ / "F.hex");
  EXPECT_EQ(Lines(Slurp(folder_ / "F.hex")).at(1), "S10B60103231313132323232F7");
}

TEST_F(FlashCompilerTest, StartsFromAnImageOfZeroesForEveryFile) {
  OpenHexFile();
  Compile({1, 2}, folder_ / "F.hex");
  OpenHexFile();
  Compile({3}, folder_ / "F.hex");
  EXPECT_THAT(Lines(Slurp(folder_ / "F.hex")).at(1), StartsWith("S10B60100000000000000000"));
}

// One language of 455 messages of 16 characters.
class OneLanguageCompilerTest : public FlashCompilerTest {
 protected:
  OneLanguageCompilerTest() {
    file_ = {.lang_count = 1,
             .width = 16,
             .last_msg = 454,
             .flags = "03",
             .mem_start = "00FF8000",
             .stride = 512};
  }
};

TEST_F(OneLanguageCompilerTest, Writes512RecordsFor8KiB) {
  OpenMes();
  Compile({1}, folder_ / "F.MHX");
  const auto lines = Lines(Slurp(folder_ / "F.MHX"));
  ASSERT_THAT(lines, SizeIs(512));
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::size_t address = 0x8000 + 16 * i;
    const std::string low_address = {static_cast<char>(address >> 8), static_cast<char>(address)};
    EXPECT_THAT(lines[i], StartsWith("S214FF" + HexOf(low_address)));
    EXPECT_THAT(lines[i], SizeIs(44));
  }
}

TEST_F(OneLanguageCompilerTest, WritesFourDigitAddressesForALowStart) {
  file_.flags = "01";
  file_.mem_start = "00006000";
  OpenMes();
  Compile({1}, folder_ / "F.hex");
  const auto lines = Lines(Slurp(folder_ / "F.hex"));
  ASSERT_THAT(lines, SizeIs(512));
  EXPECT_THAT(lines.front(), StartsWith("S1136000"));
  EXPECT_THAT(lines.back(), StartsWith("S1137FF0"));
  EXPECT_THAT(lines.back(), SizeIs(42));
}

TEST_F(OneLanguageCompilerTest, WritesAShortLastRecordForTheRemainingBytes) {
  std::string bytes = file_.Bytes();
  bytes.replace(20, 4, "2005");
  Open("SET.MES", bytes);
  Compile({1}, folder_ / "F.MHX");
  const auto lines = Lines(Slurp(folder_ / "F.MHX"));
  ASSERT_THAT(lines, SizeIs(513));
  // 09 + FF + A0 + 00 is 1A8, complemented 57.
  EXPECT_EQ(lines.back(), "S209FFA000000000000057");
}

TEST_F(OneLanguageCompilerTest, CutsTheFlashFileIntoItsSections) {
  OpenMes();
  const CompileOutcome outcome = Compile({1}, folder_ / "FW0417AB.MHX");
  EXPECT_EQ(folder_.Names(), "FW0417AB.MHX FW0417AB.MSX FW0417AB.SA1 FW0417AB.mtx SET.MES");
  EXPECT_EQ(Slurp(folder_ / "FW0417AB.SA1").size(), 8192U);
  EXPECT_EQ(Slurp(folder_ / "FW0417AB.SA1").substr(0, 32),
            "1000000000000000"
            "1111111111111111");
  EXPECT_EQ(Slurp(folder_ / "FW0417AB.mtx"), "");
  EXPECT_THAT(outcome.written, ElementsAre(folder_ / "FW0417AB.MHX", folder_ / "FW0417AB.MSX",
                                           folder_ / "FW0417AB.mtx", folder_ / "FW0417AB.SA1"));
}

// The memory of the board is read back into one picture for as long as the program runs.
TEST_F(FlashCompilerTest, KeepsMemoryPictureAndUsedLengthsFromFileToFile) {
  OpenMhxFile();
  Compile({1, 2}, folder_ / "F.MHX");
  file_ = {.lang_count = 1,
           .last_msg = 0,
           .mem_start = "00FF8000",
           .stride = 1,
           .names = {"Default", "ITALIANO", "ENGLISH", "DEUTSCH"}};
  OpenMhxFile();
  Compile({3}, folder_ / "G.MHX");
  EXPECT_EQ(Slurp(folder_ / "F.SA1"), "100011111222200021112222");
  EXPECT_EQ(Slurp(folder_ / "G.SA1"), "300011111222200021112222");
}

TEST_F(FlashCompilerTest, NeverReadsAHexFileBack) {
  OpenHexFile();
  Compile({1, 2}, folder_ / "FW0417AB.hex");
  EXPECT_EQ(folder_.Names(), "FW0417AB.HSX FW0417AB.hex SET.MES");
  EXPECT_EQ(dialogs_.pending_event_runs, 1);
}

TEST_F(FlashCompilerTest, GoesStraightToTheSectionsForAnyOtherFileType) {
  OpenMhxFile();
  engine_.workspace.set.CurrentFileType = ".XYZ";
  folder_.Write("F.MHX", kHighRecords);
  const CompileOutcome outcome = Compile({1, 2}, folder_ / "F.MHX");
  EXPECT_TRUE(outcome.completed);
  EXPECT_EQ(Slurp(folder_ / "F.MHX"), kHighRecords);
  EXPECT_EQ(Slurp(folder_ / "F.SA1"), "100011111222200021112222");
  ExpectReady();
}

}  // namespace
}  // namespace vendlingua
