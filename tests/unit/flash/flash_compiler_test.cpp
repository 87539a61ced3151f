#include "core/flash/flash_compiler.h"

#include <gmock/gmock.h>

#include <functional>
#include <optional>

#include "core/engine.h"
#include "core/formats/file_check.h"
#include "core/platform/errors.h"
#include "support/message_files.h"
#include "support/same_bytes.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

using test::HexOf;
using test::MesFile;
using test::S2Line;
using test::Slurp;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

// Answers from its script, and lets a test look around while a dialog is open.
class WatchingDialogs : public test::ScriptedDialogs {
 public:
  std::function<void()> while_asking_for_file = [] {};
  std::function<void()> while_pending_events_run = [] {};

  std::optional<std::filesystem::path> SaveFile(const FileRequest& request) override {
    while_asking_for_file();
    return ScriptedDialogs::SaveFile(request);
  }

  void LetPendingEventsRun() override {
    while_pending_events_run();
    ScriptedDialogs::LetPendingEventsRun();
  }
};

std::string Joined(const std::vector<std::string>& lines) {
  std::string joined;
  for (const std::string& line : lines) {
    joined += line + "\r\n";
  }
  return joined;
}

std::vector<std::string> Lines(const std::string& content) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  for (std::size_t end = 0; (end = content.find("\r\n", start)) != std::string::npos;
       start = end + 2) {
    lines.push_back(content.substr(start, end - start));
  }
  return lines;
}

// The records of languages 1 and 2 of the file below, 24 bytes from 0x6000 and from 0xFF8000 on.
const std::string kLowRecords =
    Joined({"S1136000313030303131313131323232323030307E", "S10B60103231313132323232F7"});
const std::string kHighRecords =
    Joined({"S214FF8000313030303131313131323232323030305E", "S20CFF80103231313132323232D7"});

// Compiles a ".MES" file whose memory of 24 bytes has two slots of three messages of four cells.
class FlashCompilerTest : public testing::Test {
 protected:
  void Open(std::string_view name, std::string_view content) {
    dialogs_.file_answers = {folder_.Write(name, content)};
    ASSERT_EQ(engine_.opener.Open(), OpenOutcome::kOpened);
    dialogs_.pending_event_runs = 0;
  }

  void OpenMes() { Open("SET.MES", file_.Bytes()); }

  // ".hex" family, the firmware lists its languages itself.
  void OpenHexFile() {
    file_.flags = "01";
    OpenMes();
  }

  void OpenMhxFile() {
    file_.flags = "03";
    file_.mem_start = "00FF8000";
    OpenMes();
  }

  CompileOutcome Compile(const std::vector<int>& languages, const std::filesystem::path& flash_file,
                         const std::optional<std::filesystem::path>& copy = std::nullopt) {
    compiler_.ticked.fill(false);
    for (const int language : languages) {
      compiler_.ticked.at(static_cast<std::size_t>(language)) = true;
    }
    dialogs_.file_answers = {flash_file};
    if (copy) {
      dialogs_.file_answers.push_back(*copy);
    }
    return engine_.compiler.Compile();
  }

  std::string ReasonOfRefusal(const std::vector<int>& languages,
                              const std::filesystem::path& flash_file) {
    try {
      Compile(languages, flash_file);
    } catch (const Error& error) {
      return error.what();
    }
    return "not refused";
  }

  void ExpectReady() const {
    EXPECT_FALSE(compiler_.busy);
    EXPECT_FALSE(compiler_.hourglass);
  }

  void ExpectBusy() const {
    EXPECT_TRUE(compiler_.busy);
    EXPECT_TRUE(compiler_.hourglass);
  }

  test::TemporaryFolder folder_;
  MesFile file_{.names = {"Default", "ITALIANO", "ENGLISH", "DEUTSCH"}};
  WatchingDialogs dialogs_;
  Engine engine_{dialogs_};
  CompilerState& compiler_ = engine_.compiler_state;
};

TEST_F(FlashCompilerTest, AsksForAHexFile) {
  OpenHexFile();
  Compile({1, 2}, folder_ / "F.hex");
  ASSERT_THAT(dialogs_.save_requests, SizeIs(1));
  EXPECT_EQ(dialogs_.save_requests[0].purpose, FilePurpose::kFlashFile);
  EXPECT_EQ(dialogs_.save_requests[0].initial_name, "*.hex");
  EXPECT_EQ(dialogs_.save_requests[0].default_extension, "hex");
  EXPECT_THAT(dialogs_.save_requests[0].filters, ElementsAre(FileFilter{"Flash File", "hex"}));
  EXPECT_TRUE(dialogs_.save_requests[0].overwrite_prompt);
}

TEST_F(FlashCompilerTest, AsksForAMhxFileInTheSdataFamily) {
  OpenMhxFile();
  Compile({1, 2}, folder_ / "F.MHX");
  ASSERT_THAT(dialogs_.save_requests, SizeIs(1));
  EXPECT_EQ(dialogs_.save_requests[0].initial_name, "*.MHX");
  EXPECT_EQ(dialogs_.save_requests[0].default_extension, "MHX");
  EXPECT_THAT(dialogs_.save_requests[0].filters, ElementsAre(FileFilter{"Flash File", "MHX"}));
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
  for (const char* answer : {"", "*.hex"}) {
    const CompileOutcome outcome = Compile({1, 2}, answer);
    EXPECT_FALSE(outcome.completed);
    EXPECT_THAT(outcome.written, IsEmpty());
    ExpectReady();
  }
  EXPECT_EQ(folder_.Names(), "SET.MES");
}

TEST_F(FlashCompilerTest, StopsWhenTheMhxWildcardIsKept) {
  OpenMhxFile();
  EXPECT_THAT(Compile({1, 2}, "*.MHX").written, IsEmpty());
  ExpectReady();
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

TEST_F(FlashCompilerTest, WritesAnIdentifiedCopyOfAHexFile) {
  OpenHexFile();
  Compile({1, 2}, folder_ / "FW0417AB.hex");
  EXPECT_EQ(Slurp(folder_ / "FW0417AB.HSX"),
            "S013000044543034313741422020202020202020E7\r\n" + kLowRecords);
}

TEST_F(FlashCompilerTest, WritesAnIdentifiedCopyOfAMhxFile) {
  OpenMhxFile();
  Compile({1, 2}, folder_ / "FW0267AA.MHX");
  EXPECT_EQ(Slurp(folder_ / "FW0267AA.MSX"),
            "S013000044543032363741442020202020202020EC\r\n" + kHighRecords);
}

TEST_F(FlashCompilerTest, PutsTheCopyIntoTheFolderOfTheFlashFile) {
  OpenHexFile();
  engine_.workspace.folders.program = folder_ / "program";
  std::filesystem::create_directory(folder_ / "flash");
  Compile({1, 2}, folder_ / "flash/FW0417AB.hex");
  EXPECT_TRUE(std::filesystem::exists(folder_ / "flash/FW0417AB.HSX"));
}

TEST_F(FlashCompilerTest, TellsThatAModelIsNotNumericAndGoesOn) {
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

TEST_F(FlashCompilerTest, TellsTheSameNamesForAHexFile) {
  OpenHexFile();
  Compile({1, 2}, folder_ / "FW.hex");
  EXPECT_THAT(dialogs_.messages.at(0).text, HasSubstr(" Name File : FW.MHX .HSX not correct"));
}

TEST_F(FlashCompilerTest, StopsBusyWhenTheNameGivesNoCopy) {
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

TEST_F(FlashCompilerTest, WritesSoundFiles) {
  OpenMhxFile();
  Compile({1, 2}, folder_ / "FW0417BZ.MHX");
  EXPECT_THAT(CheckFile(folder_ / "FW0417BZ.MHX"), IsEmpty());
  EXPECT_THAT(CheckFile(folder_ / "FW0417BZ.MSX"), IsEmpty());
}

// Nine slots of 455 messages of 16 characters, as every ".MSX" file has them.
class NineLanguageCompilerTest : public FlashCompilerTest {
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
  EXPECT_THAT(dialogs_.save_requests[1].filters, ElementsAre(FileFilter{"Flash File", "MSX"}));
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

TEST_F(NineLanguageCompilerTest, RefusesToWriteTheCopyOverTheMessageFile) {
  OpenMes();
  EXPECT_THROW(Compile(all_, folder_ / "F.MHX", folder_ / "SET.MES"), FileError);
  EXPECT_TRUE(test::SameBytes(Slurp(folder_ / "SET.MES"), file_.Bytes()));
  ExpectReady();
}

TEST_F(NineLanguageCompilerTest, WritesASoundCopy) {
  Open("SET.MES", IdentifiedBytes());
  Compile(all_, folder_ / "F.MHX", folder_ / "COPY.MSX");
  EXPECT_THAT(CheckFile(folder_ / "COPY.MSX"), IsEmpty());
}

class MsxSourceTest : public FlashCompilerTest {
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

TEST_F(FlashCompilerTest, RefusesMoreLanguagesThanSlotsWithNothingWritten) {
  OpenHexFile();
  EXPECT_THAT(ReasonOfRefusal({1, 2, 3}, folder_ / "F.hex"),
              testing::AllOf(HasSubstr("SET.MES"), HasSubstr("24")));
  EXPECT_EQ(folder_.Names(), "SET.MES");
  ExpectReady();
}

TEST_F(FlashCompilerTest, LeavesTheImageAsItWasWhenItRefuses) {
  OpenMes();
  Compile({1, 2}, folder_ / "F.hex");
  const auto image = engine_.flash_image.Bytes();
  const std::string before = test::Text(image);
  EXPECT_THAT(ReasonOfRefusal({3, 9}, folder_ / "F.hex"), HasSubstr("language 9"));
  EXPECT_EQ(test::Text(engine_.flash_image.Bytes()), before);
}

TEST_F(FlashCompilerTest, RefusesToListMoreThanTwentyLanguages) {
  file_ = {.lang_count = 21, .last_msg = 21, .stride = 22};
  OpenMes();
  EXPECT_THAT(ReasonOfRefusal({1}, folder_ / "F.hex"),
              testing::AllOf(HasSubstr("SET.MES"), HasSubstr("20"), HasSubstr("21")));
  EXPECT_EQ(folder_.Names(), "SET.MES");
}

TEST_F(FlashCompilerTest, TakesMoreThanTwentySlotsWhenTheFirmwareListsItsLanguages) {
  file_ = {.lang_count = 21, .last_msg = 21, .flags = "01", .stride = 22};
  OpenMes();
  EXPECT_TRUE(Compile({1}, folder_ / "F.hex").completed);
}

TEST_F(FlashCompilerTest, FailsReadyAgainWhenTheMessageFileIsGone) {
  OpenHexFile();
  std::filesystem::remove(folder_ / "SET.MES");
  EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / "F.hex"), HasSubstr("SET.MES"));
  EXPECT_EQ(folder_.Names(), "");
  ExpectReady();
}

TEST_F(FlashCompilerTest, RefusesAMessageFileThatIsCutAnywhere) {
  OpenHexFile();
  const std::string bytes = file_.Bytes();
  constexpr std::size_t kEndOfLanguage2 = 24 + 2 * 36 + 20 + 12;
  for (std::size_t length = 0; length < kEndOfLanguage2; ++length) {
    folder_.Write("SET.MES", bytes.substr(0, length));
    EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / "F.hex"), HasSubstr("SET.MES")) << length;
    EXPECT_EQ(folder_.Names(), "SET.MES");
  }
}

// A message was appended while another language was open.
TEST_F(FlashCompilerTest, CompilesALanguageThatLacksAMessageOnceItWasSaved) {
  file_ = {.flags = "01", .stride = 4, .names = {"Default", "ITALIANO", "ENGLISH"}};
  Open("SET.MES", file_.Bytes().substr(0, 24 + 2 * file_.BlockLength() + 20 + 12));
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  engine_.view.AddMessage(dialogs_);
  engine_.writer.Save();
  EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / "F.hex"), HasSubstr("message 3 of language 2"));
  engine_.languages.ChooseDestination(2);
  engine_.writer.Save();
  EXPECT_TRUE(Compile({1, 2}, folder_ / "F.hex").completed);
  EXPECT_THAT(Lines(Slurp(folder_ / "F.hex")).at(1),
              StartsWith("S1136010" + HexOf("200021112222    ")));
}

TEST_F(FlashCompilerTest, FailsReadyAgainWhenTheFlashFileCannotBeWritten) {
  OpenHexFile();
  EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / "missing/F.hex"), HasSubstr("F.hex"));
  ExpectReady();
}

TEST_F(FlashCompilerTest, RefusesToOverwriteTheMessageFile) {
  OpenHexFile();
  EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / "SET.MES"), HasSubstr("SET.MES"));
  EXPECT_EQ(Slurp(folder_ / "SET.MES"), file_.Bytes());
  ExpectReady();
}

TEST_F(FlashCompilerTest, RefusesToWriteTheNamedCopyOverTheMessageFile) {
  OpenMhxFile();
  std::filesystem::create_symlink("SET.MES", folder_ / "FW0417AB.MSX");
  EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / "FW0417AB.MHX"), HasSubstr("FW0417AB.MSX"));
  EXPECT_EQ(Slurp(folder_ / "SET.MES"), file_.Bytes());
  ExpectReady();
}

TEST_F(FlashCompilerTest, LeavesTheMessageFileAsItWas) {
  OpenMhxFile();
  Compile({1, 2}, folder_ / "FW0417AB.MHX");
  EXPECT_EQ(Slurp(folder_ / "SET.MES"), file_.Bytes());
}

}  // namespace
}  // namespace vendlingua
