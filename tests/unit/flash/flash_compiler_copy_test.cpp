#include <gmock/gmock.h>

#include "core/flash/flash_compiler.h"
#include "core/formats/file_check.h"
#include "support/skip_on_windows.h"
#include "unit/flash/flash_compiler_test.h"

namespace vendlingua {
namespace {

using test::kHighRecords;
using test::kLowRecords;
using test::S2Line;
using test::Slurp;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

class CompiledCopyTest : public test::FlashCompilerTest {};

TEST_F(CompiledCopyTest, WritesAnIdentifiedCopyOfAHexFile) {
  OpenHexFile();
  Compile({1, 2}, folder_ / "FW0417AB.hex");
  EXPECT_EQ(Slurp(folder_ / "FW0417AB.HSX"),
            "S013000044543034313741422020202020202020E7\r\n" + kLowRecords);
}

TEST_F(CompiledCopyTest, WritesAnIdentifiedCopyOfAMhxFile) {
  OpenMhxFile();
  Compile({1, 2}, folder_ / "FW0267AA.MHX");
  EXPECT_EQ(Slurp(folder_ / "FW0267AA.MSX"),
            "S013000044543032363741442020202020202020EC\r\n" + kHighRecords);
}

TEST_F(CompiledCopyTest, PutsTheCopyIntoTheFolderOfTheFlashFile) {
  OpenHexFile();
  engine_.workspace.folders.program = folder_ / "program";
  std::filesystem::create_directory(folder_ / "flash");
  Compile({1, 2}, folder_ / "flash/FW0417AB.hex");
  EXPECT_TRUE(std::filesystem::exists(folder_ / "flash/FW0417AB.HSX"));
}

TEST_F(CompiledCopyTest, TellsThatAModelIsNotNumericAndGoesOn) {
  OpenMhxFile();
  const CompileOutcome outcome = Compile({1, 2}, folder_ / "FWX417AA.MHX");
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kInformation);
  EXPECT_EQ(dialogs_.messages[0].title, "Info");
  EXPECT_EQ(dialogs_.messages[0].text, std::string(21, ' ') +
                                           "The file .MSX/.HSX will not created \n\n Name File : "
                                           "FWX417AA.MHX .HSX not correct (Es:FW0000AA)");
  EXPECT_TRUE(outcome.completed);
  EXPECT_EQ(folder_.Names(), "FWX417AA.MHX FWX417AA.SA1 FWX417AA.mtx SET.MES");
  ExpectReady();
}

TEST_F(CompiledCopyTest, TellsTheSameNamesForAHexFile) {
  OpenHexFile();
  Compile({1, 2}, folder_ / "FW.hex");
  EXPECT_THAT(dialogs_.messages.at(0).text, HasSubstr(" Name File : FW.MHX .HSX not correct"));
}

TEST_F(CompiledCopyTest, TellsANameOfAnyCharacters) {
  OpenHexFile();
  EXPECT_TRUE(Compile({1, 2}, folder_ / "ФВ04水7AB.hex").completed);
  EXPECT_THAT(dialogs_.messages.at(0).text, HasSubstr(" Name File : ФВ04水7AB.MHX .HSX not"));
}

TEST_F(CompiledCopyTest, TellsANameThatIsNoText) {
  SKIP_ON_WINDOWS("names that are no text");
  OpenHexFile();
  for (const std::string name : {"FW\xE8\x80", "<b>0417"}) {
    dialogs_.messages.clear();
    EXPECT_TRUE(Compile({1, 2}, folder_ / (name + ".hex")).completed);
    ASSERT_THAT(dialogs_.messages, SizeIs(1));
    EXPECT_THAT(dialogs_.messages[0].text, HasSubstr(" Name File : " + name + ".MHX .HSX not"));
  }
}

TEST_F(CompiledCopyTest, TakesTheModelOfANameOfAnyCharacters) {
  OpenMhxFile();
  Compile({1, 2}, folder_ / "ФВ0417AB.MHX");
  EXPECT_EQ(Slurp(folder_ / "ФВ0417AB.MSX"),
            "S013000044543034313741422020202020202020E7\r\n" + kHighRecords);
}

TEST_F(CompiledCopyTest, StopsBusyWhenTheNameGivesNoCopy) {
  OpenMhxFile();
  const CompileOutcome outcome = Compile({1, 2}, folder_ / "FW0417AB.txt");
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kCritical);
  EXPECT_EQ(dialogs_.messages[0].text, "Impossibile creare il file MSX o il file HSX");
  EXPECT_EQ(dialogs_.messages[0].title, "Errore");
  EXPECT_FALSE(outcome.completed);
  EXPECT_THAT(outcome.written, ElementsAre(folder_ / "FW0417AB.txt"));
  EXPECT_EQ(folder_.Names(), "FW0417AB.txt SET.MES");
  EXPECT_EQ(Slurp(folder_ / "FW0417AB.txt"), kHighRecords);
  ExpectBusy();
}

TEST_F(CompiledCopyTest, WritesSoundFiles) {
  OpenMhxFile();
  Compile({1, 2}, folder_ / "FW0417BZ.MHX");
  EXPECT_THAT(CheckFile(folder_ / "FW0417BZ.MHX"), IsEmpty());
  EXPECT_THAT(CheckFile(folder_ / "FW0417BZ.MSX"), IsEmpty());
}

// Nine slots of 455 messages of 16 characters, as every ".MSX" file has them.
class NineLanguageCompilerTest : public test::FlashCompilerTest {
 protected:
  NineLanguageCompilerTest() {
    file_ = {.lang_count = 9,
             .width = 16,
             .last_msg = 454,
             .flags = "03",
             .header_count = "00A9",
             .mem_start = "00FF0000",
             .stride = 455,
             .names = {"Default"}};
    for (int language = 1; language <= 9; ++language) {
      file_.names.push_back("LANGUAGE " + std::to_string(language));
    }
  }

  // The file with "    MP0417AB    " as message 0 of language 1.
  std::string IdentifiedBytes() const {
    std::string bytes = file_.Bytes();
    bytes.replace(24 + (20 + 456 * 16) + 20, 16, "    MP0417AB    ");
    return bytes;
  }

  const std::vector<int> all_ = {1, 2, 3, 4, 5, 6, 7, 8, 9};
};

TEST_F(NineLanguageCompilerTest, AsksWhereTheCopyGoes) {
  OpenMes();
  Compile(all_, folder_ / "F.MHX", folder_ / "COPY.MSX");
  ASSERT_THAT(dialogs_.save_requests, SizeIs(2));
  EXPECT_EQ(dialogs_.save_requests[1].purpose, FilePurpose::kIdentifiedCopy);
  EXPECT_EQ(dialogs_.save_requests[1].initial_name, "*.MSX");
  EXPECT_EQ(dialogs_.save_requests[1].default_extension, "MSX");
  EXPECT_THAT(dialogs_.save_requests[1].filters,
              testing::ElementsAre(FileFilter{"Flash File", "MSX"}));
  EXPECT_FALSE(dialogs_.save_requests[1].overwrite_prompt);
}

TEST_F(NineLanguageCompilerTest, AsksForAMsxFileInTheHexFamilyToo) {
  file_.flags = "01";
  OpenMes();
  Compile(all_, folder_ / "F.hex", folder_ / "COPY.MSX");
  ASSERT_THAT(dialogs_.save_requests, SizeIs(2));
  EXPECT_EQ(dialogs_.save_requests[1].initial_name, "*.MSX");
}

TEST_F(NineLanguageCompilerTest, WritesTheRecordsBetweenHeaderAndFixedLastLine) {
  Open("SET.MES", IdentifiedBytes());
  Compile(all_, folder_ / "F.MHX", folder_ / "COPY.MSX");
  EXPECT_EQ(Slurp(folder_ / "COPY.MSX"), "S013000044543034313741422020202020202020E7\r\n" +
                                             Slurp(folder_ / "F.MHX") +
                                             "S214FFFFF00FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFC\r\n");
}

TEST_F(NineLanguageCompilerTest, WritesAHeaderWithoutIdentificationWhenTheFirstRecordHasNone) {
  OpenMes();
  Compile(all_, folder_ / "F.MHX", folder_ / "COPY.MSX");
  EXPECT_THAT(Slurp(folder_ / "COPY.MSX"), StartsWith("S01300004454202020202020202098\r\n" +
                                                      S2Line(0xFF0000, "1000000000000000")));
}

TEST_F(NineLanguageCompilerTest, IgnoresTheNameOfTheFlashFile) {
  OpenMes();
  EXPECT_TRUE(Compile(all_, folder_ / "flash.txt", folder_ / "COPY.MSX").completed);
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(NineLanguageCompilerTest, WritesTheSectionsOfTheFlashFile) {
  OpenMes();
  const CompileOutcome outcome = Compile(all_, folder_ / "F.MHX", folder_ / "COPY.MSX");
  EXPECT_EQ(folder_.Names(), "COPY.MSX F.MHX F.SA0 F.SA1 F.SA2 F.SA3 F.SA4 F.mtx SET.MES");
  EXPECT_EQ(Slurp(folder_ / "F.SA0").size(), 0x8000U);
  EXPECT_EQ(Slurp(folder_ / "F.SA4").size(), 0x200U);
  EXPECT_TRUE(outcome.completed);
  ExpectReady();
}

TEST_F(NineLanguageCompilerTest, StopsBusyWhenNoCopyIsChosen) {
  OpenMes();
  for (const char* answer : {"", "*.MSX"}) {
    const CompileOutcome outcome = Compile(all_, folder_ / "F.MHX", answer);
    EXPECT_FALSE(outcome.completed);
    EXPECT_THAT(outcome.written, ElementsAre(folder_ / "F.MHX"));
    EXPECT_EQ(folder_.Names(), "F.MHX SET.MES");
    ExpectBusy();
  }
}

TEST_F(NineLanguageCompilerTest, MakesACopyThatOpensAsAMessageFile) {
  Open("SET.MES", IdentifiedBytes());
  Compile(all_, folder_ / "F.MHX", folder_ / "COPY.MSX");
  dialogs_.file_answers = {folder_ / "COPY.MSX"};
  ASSERT_EQ(engine_.opener.Open(), OpenOutcome::kOpened);
  EXPECT_EQ(engine_.workspace.set.language_names.at(9), "9999999999999999");  // message 169
  engine_.languages.ChooseDestination(9);
  EXPECT_EQ(test::Text(engine_.workspace.set.DestText[3].First(16)), "9333333333333333");
}

TEST_F(NineLanguageCompilerTest, WritesASoundCopy) {
  Open("SET.MES", IdentifiedBytes());
  Compile(all_, folder_ / "F.MHX", folder_ / "COPY.MSX");
  EXPECT_THAT(CheckFile(folder_ / "COPY.MSX"), IsEmpty());
}

}  // namespace
}  // namespace vendlingua
