#include "core/operations/message_file_writer.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "core/platform/errors.h"
#include "support/engine_test.h"
#include "support/full_disk.h"
#include "support/same_bytes.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::Codes;
using test::HexOf;
using test::MesFile;
using test::MsxFile;
using test::MsxMessage;
using test::S2Line;
using test::SameBytes;
using test::Slurp;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const std::string kDefaultName = "Default             ";
const std::string kItalianName = "ITALIANO            ";

class MessageFileWriterTest : public test::EngineTest {
 protected:
  void SetDestination(std::size_t message, std::string_view text) {
    set_.DestText.at(message) = DisplayText(Codes(text));
  }

  // What a user types as the message that is shown.
  void Type(std::string_view text) {
    engine_.editing.ChangeText(Codes(text));
    engine_.editing.KeyPressed();
  }

  void ExpectSaved() {
    const SaveOutcome outcome = engine_.writer.Save();
    EXPECT_EQ(outcome.result, SaveOutcome::kSaved) << outcome.reason;
  }

  std::string ReasonOfFailure() {
    const SaveOutcome outcome = engine_.writer.Save();
    EXPECT_EQ(outcome.result, SaveOutcome::kFailed);
    return outcome.reason;
  }
};

// A set without a destination, as an import leaves it: two languages of 3 + 1 slots of 4 cells.
class NewMesFile : public MessageFileWriterTest {
 protected:
  NewMesFile() {
    set_.CurrentFileType = ".MES";
    set_.LangCount = 2;
    set_.LastCol = 3;
    set_.HeaderCount = 0x1AB;
    set_.LastMsg = 2;
    set_.MemStart = 0xFF8000;
    set_.MemLength = 24;
    set_.LangStride = 3;
    set_.HeaderBit0 = kTrue;
    set_.Modified = kTrue;
    set_.OriginText[0] = DisplayText(Codes("ABCD"));
    set_.OriginText[1] = DisplayText(Codes("EF\xFE\xFE"));
    set_.OriginText[2] = DisplayText(Codes("GHIJ"));
    dialogs_.input_answers = {"italiano"};
    dialogs_.file_answers = {path_};
  }

  fs::path path_ = folder_ / "NEW.MES";
  const std::string header_ =
      "\x02\x03"
      "0101AB000200FF80000018";
  const std::string texts_ = "ABCDEF\xFE\xFEGHIJ    ";
};

TEST_F(NewMesFile, HoldsHeaderDefaultBlockAndTheOriginTextsUnderTheNewName) {
  ExpectSaved();
  EXPECT_EQ(Slurp(path_), header_ + kDefaultName + texts_ + kItalianName + texts_);
}

TEST_F(NewMesFile, HasTheSizeOfTwoWholeBlocks) {
  set_.LangStride = 455;
  set_.LastCol = 15;
  ExpectSaved();
  EXPECT_EQ(fs::file_size(path_), 24U + 2 * (20 + 456 * 16));
}

TEST_F(NewMesFile, FillsSlotsThatNoTextWasAssignedToWithBlanks) {
  set_.LangStride = 600;
  ExpectSaved();
  constexpr std::size_t kBlankSlots = 601 - 3;
  const std::string blanks(kBlankSlots * 4, ' ');
  const std::string texts = texts_.substr(0, 12) + blanks;
  EXPECT_TRUE(SameBytes(Slurp(path_), header_ + kDefaultName + texts + kItalianName + texts));
}

TEST_F(NewMesFile, AsksForTheNameBeforeTheFile) {
  dialogs_.file_answers = {""};
  engine_.writer.Save();
  ASSERT_THAT(dialogs_.inputs, SizeIs(1));
  EXPECT_EQ(dialogs_.inputs[0].prompt, "text 45");
  EXPECT_EQ(dialogs_.inputs[0].title, "text 46");
  EXPECT_EQ(dialogs_.inputs[0].default_answer, "");
}

TEST_F(NewMesFile, AsksForAPathThatMayOverwrite) {
  engine_.workspace.folders.current = folder_.path();
  ExpectSaved();
  ASSERT_THAT(dialogs_.save_requests, SizeIs(1));
  const FileRequest& request = dialogs_.save_requests[0];
  EXPECT_EQ(request.purpose, FilePurpose::kSaveMessages);
  EXPECT_EQ(request.initial_name, "*.MES");
  EXPECT_EQ(request.default_extension, "MES");
  EXPECT_THAT(request.filters, ElementsAre(FileFilter{"Message", "MES"}));
  EXPECT_FALSE(request.must_exist);
  EXPECT_TRUE(request.overwrite_prompt);
  EXPECT_EQ(request.folder, folder_.path());
}

TEST_F(NewMesFile, IsTheOpenFileFromThenOn) {
  ExpectSaved();
  EXPECT_EQ(set_.CurrentFileName, path_);
  EXPECT_EQ(view().caption, "NEW.MES");
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(NewMesFile, ShowsTwoDestinationEntries) {
  ExpectSaved();
  EXPECT_TRUE(menus().mnuDes[0].visible);
  EXPECT_TRUE(menus().mnuDes[1].visible);
  EXPECT_FALSE(menus().mnuDes[2].visible);
}

TEST_F(NewMesFile, LeavesDestLangAndLangCountAsTheyAre) {
  ExpectSaved();
  EXPECT_EQ(set_.DestLang, 0);
  EXPECT_EQ(set_.LangCount, 2);
}

TEST_F(NewMesFile, IsNotWrittenWhenNoNameWasChosen) {
  for (const char* answer : {"", "*.MES"}) {
    dialogs_.input_answers = {"italiano"};
    dialogs_.file_answers = {answer};
    EXPECT_EQ(engine_.writer.Save().result, SaveOutcome::kNothingWritten) << answer;
  }
  EXPECT_EQ(folder_.Names(), "");
  EXPECT_TRUE(set_.CurrentFileName.empty());
  EXPECT_EQ(set_.Modified, kTrue);
}

TEST_F(NewMesFile, HoldsNoSecondNameWhenDestLangIsNot0) {
  set_.DestLang = 1;
  ExpectSaved();
  EXPECT_THAT(dialogs_.inputs, IsEmpty());
  EXPECT_EQ(Slurp(path_), header_ + kDefaultName + texts_ + texts_);
}

TEST_F(NewMesFile, KeepsTheTailOfALongerFileThatItReplaces) {
  folder_.Write("NEW.MES", std::string(100, '#'));
  ExpectSaved();
  EXPECT_EQ(Slurp(path_),
            header_ + kDefaultName + texts_ + kItalianName + texts_ + std::string(4, '#'));
}

TEST_F(NewMesFile, KeepsOnlyTheLowDigitsOfMemLength) {
  set_.MemLength = 0x12345;
  ExpectSaved();
  EXPECT_EQ(Slurp(path_).substr(20, 4), "2345");
}

TEST_F(NewMesFile, StoresDisplayType0WhileTheMenuIsDisabled) {
  engine_.editing.ChooseDisplayType(2);
  ExpectSaved();
  EXPECT_EQ(Slurp(path_).substr(2, 2), "01");
}

TEST_F(NewMesFile, InAMissingFolderIsADirectoryThatIsNotReady) {
  dialogs_.file_answers = {folder_ / "gone/NEW.MES"};
  EXPECT_THAT(ReasonOfFailure(), HasSubstr("gone"));
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kCritical);
  EXPECT_EQ(dialogs_.messages[0].text, " Directory not ready");
}

// A file with the languages Default and ITALIANO, of which ITALIANO is edited.
class MesPatch : public MessageFileWriterTest {
 protected:
  void Edit(const MesFile& file, int language = 1) {
    bytes_ = file.Bytes();
    Open("FILE.MES", bytes_);
    engine_.languages.ChooseOrigin(0);
    engine_.languages.ChooseDestination(language);
  }

  // Starts a blank new language.
  void StartNewLanguage(const MesFile& file) {
    bytes_ = file.Bytes();
    Open("FILE.MES", bytes_);
    engine_.languages.ChooseOrigin(0);
    engine_.languages.StartNewLanguage(0);
  }

  std::string Patched(std::size_t offset, std::string_view text) const {
    return std::string(bytes_).replace(offset, text.size(), text);
  }

  std::string Saved() {
    ExpectSaved();
    return Slurp(folder_ / "FILE.MES");
  }

  // The flags of `file` as they are saved with display type `type`.
  std::string SavedFlags(const MesFile& file, std::size_t type) {
    Edit(file);
    engine_.editing.ChooseDisplayType(type);
    return Saved().substr(2, 2);
  }

  std::string bytes_;
};

// 24 bytes of header, blocks of 36 bytes: block 1 begins at 60, its messages at 80.

TEST_F(MesPatch, ChangesNothingWhenNothingChanged) {
  Edit(MesFile{.flags = "0B"});
  EXPECT_EQ(Saved(), bytes_);
}

TEST_F(MesPatch, WritesTheTextsOfTheEditedLanguage) {
  Edit(MesFile{.names = {"Default", "ITALIANO", "ENGLISH"}});
  SetDestination(1, "A\xFE\x01Z");
  SetDestination(2, "BB");
  EXPECT_EQ(Saved(), Patched(84, "A\xFE\x01ZBB  "));
}

TEST_F(MesPatch, StoresTheEditBoxFirst) {
  Edit(MesFile());
  Type("XY");
  EXPECT_EQ(Saved(), Patched(80, "XY  "));
}

TEST_F(MesPatch, ChangesNoOtherByte) {
  Edit(MesFile{.names = {"Default", "ITALIANO", "ENGLISH"}}, 2);
  // What the set holds of the header is not written back, but for flags and LastMsg.
  set_.LangCount = 9;
  set_.HeaderCount = 9;
  set_.MemStart = 9;
  set_.MemLength = 9;
  for (std::size_t message = 0; message < 4; ++message) {
    set_.OriginText[message] = DisplayText(Codes("####"));
  }
  EXPECT_EQ(Saved(), bytes_);
}

TEST_F(MesPatch, WritesTheNameFromTheMenuWithItsCaseUnchanged) {
  Edit(MesFile());
  set_.language_names[1] = "Français";
  EXPECT_EQ(Saved(), Patched(60,
                             "Fran\xE7"
                             "ais            "));
}

TEST_F(MesPatch, KeepsTheNamesOfTheFileByteForByte) {
  Edit(MesFile{.names = {"Default", " \x81italiano \xE8\xFF\x01"}});
  EXPECT_EQ(Saved(), bytes_);
}

TEST_F(MesPatch, StoresDisplayTypes0To2) {
  EXPECT_EQ(SavedFlags(MesFile{.flags = "0F"}, 0), "03");
  EXPECT_EQ(SavedFlags(MesFile{.flags = "03"}, 1), "07");
  EXPECT_EQ(SavedFlags(MesFile{.flags = "02"}, 2), "0A");
}

TEST_F(MesPatch, StoresDisplayType3As0) {
  EXPECT_EQ(SavedFlags(MesFile{.flags = "00"}, 3), "00");
  EXPECT_EQ(SavedFlags(MesFile{.flags = "0F"}, 3), "03");
}

TEST_F(MesPatch, StoresDisplayType0WhileTheMenuIsDisabled) {
  Edit(MesFile{.flags = "09"});
  set_.phase = Phase::kOriginChosen;
  set_.file_was_imported = true;
  ASSERT_FALSE(menus().mnuTLCD.enabled);
  EXPECT_EQ(Saved(), Patched(2, "01"));
}

TEST_F(MesPatch, LeavesHigherMessagesUntouchedAfterLastMsgWasLowered) {
  Edit(MesFile());
  set_.LastMsg = 1;
  for (std::size_t message = 0; message < 4; ++message) {
    SetDestination(message, "ZZZZ");
  }
  Type("ZZZZ");
  bytes_ = Patched(8, "0001");
  EXPECT_EQ(Saved(), Patched(80, "ZZZZZZZZ"));
}

TEST_F(MesPatch, WritesAMessageThatWasAppended) {
  Edit(MesFile());
  set_.LastMsg = 3;
  SetDestination(3, "LAST");
  bytes_ = Patched(8, "0003");
  EXPECT_EQ(Saved(), Patched(92, "LAST"));
}

TEST_F(MesPatch, ComputesTheBlockLengthAnew) {
  Edit(MesFile());
  set_.BlockLength = 1;
  EXPECT_EQ(Saved(), bytes_);
  EXPECT_EQ(set_.BlockLength, 36.0F);
}

TEST_F(MesPatch, ClearsModified) {
  Edit(MesFile());
  Type("XY");
  ASSERT_EQ(set_.Modified, kTrue);
  ExpectSaved();
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(MesPatch, AsksNothing) {
  Edit(MesFile());
  dialogs_.open_requests.clear();
  ExpectSaved();
  EXPECT_THAT(dialogs_.inputs, IsEmpty());
  EXPECT_THAT(dialogs_.save_requests, IsEmpty());
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(MesPatch, TellsTheStatusLine) {
  Edit(MesFile());
  ExpectSaved();
  EXPECT_EQ(view().status, "text 54 " + (folder_ / "FILE.MES").string());
}

TEST_F(MesPatch, IsNotWrittenOverTheNextLanguage) {
  Edit(MesFile{.names = {"Default", "ITALIANO", "ENGLISH"}});
  set_.LastMsg = 4;
  EXPECT_THAT(ReasonOfFailure(), HasSubstr("FILE.MES"));
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), bytes_);
}

TEST_F(MesPatch, MayLengthenTheLastLanguage) {
  Edit(MesFile());
  set_.LastMsg = 4;
  SetDestination(3, "AAAA");
  SetDestination(4, "BBBB");
  bytes_ = Patched(8, "0004").substr(0, 92);
  EXPECT_EQ(Saved(), bytes_ + "AAAABBBB");
}

// 16 x (4095 + 1) + 20 bytes wrap to 20: language 2 begins where the texts of language 1 do.
TEST_F(MesPatch, IsNotWrittenWhenTheBlockLengthWrapsToLessThanALanguage) {
  std::string bytes = MesFile{.lang_count = 1, .width = 16}.Bytes();
  Open("FILE.MES", bytes.replace(20, 4, "FFF0"));
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  EXPECT_THAT(ReasonOfFailure(), HasSubstr("a language block of 20 bytes"));
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), bytes);
}

// A block position that would be negative: 16 x (2047 + 1) + 20 bytes wrap to -32748.
TEST_F(MesPatch, IsRefusedBeforeTheStartOfTheFile) {
  Edit(MesFile());
  set_.LastCol = 15;
  set_.LangStride = 2047;
  EXPECT_THAT(ReasonOfFailure(), HasSubstr("-32748"));
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), bytes_);
}

TEST_F(MesPatch, FailsWithoutABoxWhenTheFileIsGone) {
  Edit(MesFile());
  Type("XY");
  fs::remove(folder_ / "FILE.MES");
  const std::string reason = ReasonOfFailure();
  EXPECT_THAT(reason, HasSubstr("FILE.MES"));
  EXPECT_EQ(view().status, "text 55 " + reason);
  EXPECT_THAT(dialogs_.messages, IsEmpty());
  EXPECT_EQ(folder_.Names(), "");
}

TEST_F(MesPatch, FailsOnAFullDisk) {
  Edit(MesFile());
  Type("XY");
  const test::FullDisk disk(10);
  EXPECT_THAT(ReasonOfFailure(), HasSubstr("FILE.MES: cannot be written"));
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), bytes_);
  EXPECT_EQ(folder_.Names(), "FILE.MES");
}

TEST_F(MesPatch, IsNotWrittenIntoWhatIsNoFile) {
  if (!fs::exists("/dev/null")) {
    GTEST_SKIP() << "needs the device file";
  }
  Edit(MesFile());
  fs::remove(folder_ / "FILE.MES");
  fs::create_symlink("/dev/null", folder_ / "FILE.MES");
  EXPECT_THAT(ReasonOfFailure(), HasSubstr("FILE.MES: is not a file that can be written"));
}

TEST_F(MesPatch, KeepsModifiedClearedWhenItFails) {
  Edit(MesFile());
  Type("XY");
  fs::remove(folder_ / "FILE.MES");
  ReasonOfFailure();
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(MesPatch, TellsThatTheDirectoryIsNotReady) {
  Edit(MesFile());
  fs::remove_all(folder_.path());
  ReasonOfFailure();
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kCritical);
  EXPECT_EQ(dialogs_.messages[0].text, " Directory not ready");
  EXPECT_EQ(dialogs_.messages[0].buttons, MessageButtons::kOk);
}

class NewMesLanguage : public MesPatch {
 protected:
  NewMesLanguage() { StartNewLanguage(MesFile()); }
};

TEST_F(NewMesLanguage, IsNamedWhenItIsSaved) {
  dialogs_.input_answers = {"english"};
  ExpectSaved();
  ASSERT_THAT(dialogs_.inputs, SizeIs(1));
  EXPECT_EQ(dialogs_.inputs[0].purpose, InputPurpose::kNewLanguageName);
  EXPECT_EQ(dialogs_.inputs[0].prompt, "text 45");
  EXPECT_EQ(dialogs_.inputs[0].title, "text 46");
  EXPECT_EQ(dialogs_.inputs[0].default_answer, "");
}

TEST_F(NewMesLanguage, GetsTheBlockOfTheFirstFreeEntry) {
  SetDestination(1, "NEW1");
  dialogs_.input_answers = {"english"};
  EXPECT_EQ(Saved(), bytes_ + "ENGLISH                 NEW1    ");
  EXPECT_EQ(set_.DestLang, 2);
}

TEST_F(NewMesLanguage, IsShownInTheMenusWhenItIsSaved) {
  dialogs_.input_answers = {"english"};
  ExpectSaved();
  EXPECT_TRUE(menus().mnuDes[2].visible);
  EXPECT_EQ(menus().mnuDes[2].caption, "ENGLISH");
  EXPECT_EQ(menus().mnuori[2].caption, "ENGLISH");
}

TEST_F(NewMesLanguage, IsNotReadAgainWhileTheDestinationMenuIsDisabled) {
  set_.phase = Phase::kFileOpen;
  set_.file_was_imported = true;
  set_.MemStart = 1;  // the file says 0x6000
  dialogs_.input_answers = {"english"};
  ExpectSaved();
  EXPECT_EQ(set_.MemStart, 1U);
  EXPECT_TRUE(menus().mnuDes[2].visible);
  EXPECT_EQ(menus().mnuDes[2].caption, "ENGLISH");
}

TEST_F(NewMesLanguage, TakesTheFirstDestinationEntryThatIsNotShown) {
  set_.language_names.resize(1);
  dialogs_.input_answers = {"english"};
  EXPECT_EQ(Saved(), Patched(60, "ENGLISH                         "));
  EXPECT_EQ(set_.DestLang, 1);
}

// The block before ends with its last message; its free slot is filled with 0.
TEST_F(NewMesLanguage, LeavesAGapOfZerosBehindAShortBlock) {
  dialogs_.input_answers = {"english"};
  const std::string two_languages = Saved();
  engine_.languages.StartNewLanguage(0);
  dialogs_.input_answers = {"deutsch"};
  EXPECT_EQ(Saved(),
            two_languages + std::string(4, '\0') + "DEUTSCH             " + std::string(12, ' '));
}

TEST_F(NewMesLanguage, StartsFromTheTextsOfAnotherOne) {
  dialogs_.yes_no_answers = {MessageAnswer::kNo};
  engine_.languages.StartNewLanguage(1);
  dialogs_.input_answers = {"english"};
  EXPECT_EQ(Saved(), bytes_ + "ENGLISH             100011111222");
}

TEST_F(NewMesLanguage, IsPaddedCutAndRaisedInName) {
  dialogs_.input_answers = {"português do brasil novo"};
  EXPECT_EQ(Saved().substr(96, 20), "PORTUGU\xCAS DO BRASIL ");
}

TEST_F(NewMesLanguage, IsAskedForAgainWithoutAName) {
  dialogs_.input_answers = {"", " ", std::string(20, ' ') + "x", "english"};
  EXPECT_EQ(Saved().substr(96, 20), "ENGLISH             ");
  ASSERT_THAT(dialogs_.messages, SizeIs(3));
  for (const MessageRequest& message : dialogs_.messages) {
    EXPECT_EQ(message.icon, MessageIcon::kCritical);
    EXPECT_EQ(message.text, "text 32");
    EXPECT_EQ(message.title, "");
  }
}

TEST_F(NewMesLanguage, IsAskedForAgainUnderANameThatIsTaken) {
  dialogs_.input_answers = {"italiano  ", "english"};
  EXPECT_EQ(Saved().substr(96, 20), "ENGLISH             ");
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kExclamation);
  EXPECT_EQ(dialogs_.messages[0].text, "text 34\nITALIANO            \ntext 35");
  EXPECT_EQ(dialogs_.messages[0].title, "");
}

TEST_F(NewMesLanguage, MayTakeTheCaptionOfEntry0) {
  set_.language_names[0] = "ENGLISH";
  dialogs_.input_answers = {"english"};
  EXPECT_EQ(Saved().substr(96, 7), "ENGLISH");
}

TEST_F(NewMesLanguage, MayTakeANameThatDiffersInCase) {
  set_.language_names[1] = "English";
  dialogs_.input_answers = {"English"};
  EXPECT_EQ(Saved().substr(96, 7), "ENGLISH");
}

TEST_F(NewMesLanguage, IsAskedForAgainUnderANameThatTheDisplayCannotShow) {
  dialogs_.input_answers = {"РУССКИЙ", "russo"};
  EXPECT_EQ(Saved().substr(96, 5), "RUSSO");
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kCritical);
  EXPECT_THAT(dialogs_.messages[0].text, HasSubstr("РУССКИЙ"));
}

TEST_F(NewMesLanguage, StaysNewWhenItCannotBeSaved) {
  fs::remove(folder_ / "FILE.MES");
  dialogs_.input_answers = {"english"};
  ReasonOfFailure();
  EXPECT_EQ(set_.DestLang, 0);
  EXPECT_FALSE(menus().mnuDes[2].visible);
  folder_.Write("FILE.MES", bytes_);
  dialogs_.input_answers = {"english"};
  EXPECT_EQ(Saved().substr(96, 7), "ENGLISH");
}

TEST_F(NewMesLanguage, IsRefusedBehindOneHundred) {
  MesFile full;
  while (full.names.size() <= 100) {
    full.names.push_back("LANGUAGE " + std::to_string(full.names.size()));
  }
  dialogs_.yes_no_answers = {MessageAnswer::kNo};
  Edit(full);
  set_.DestLang = 0;
  dialogs_.input_answers = {"english"};
  EXPECT_THAT(ReasonOfFailure(), HasSubstr("100 languages"));
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), bytes_);
}

// A file with two languages, of which the second is edited.
class MsxPatch : public MessageFileWriterTest {
 protected:
  MsxPatch() {
    Open("FILE.MSX", bytes_);
    engine_.languages.ChooseOrigin(0);
    engine_.languages.ChooseDestination(2);
  }

  // The file with another text as message `message` of language `language`.
  std::string With(std::size_t language, std::size_t message, std::string_view text) const {
    const std::size_t address = 0xFF0000 + ((language - 1) * 455 + message) * 16;
    const std::string old_line = S2Line(address, MsxMessage(language, message));
    return std::string(bytes_).replace(bytes_.find(old_line), old_line.size(),
                                       S2Line(address, text));
  }

  std::string Saved() {
    ExpectSaved();
    return Slurp(folder_ / "FILE.MSX");
  }

  const std::string bytes_ = MsxFile(2);
};

TEST_F(MsxPatch, ChangesNothingWhenNothingChanged) { EXPECT_TRUE(SameBytes(Saved(), bytes_)); }

TEST_F(MsxPatch, RewritesTheLinesOfTheEditedLanguage) {
  SetDestination(454, "Vuoto acqua \xFE\xFE\xFE\xFE");
  EXPECT_TRUE(SameBytes(Saved(), With(2, 454, "Vuoto acqua \xFE\xFE\xFE\xFE")));
}

TEST_F(MsxPatch, StoresTheEditBoxFirst) {
  engine_.editing.GoTo(20);
  Type("TWENTY");
  EXPECT_TRUE(SameBytes(Saved(), With(2, 20, "TWENTY          ")));
}

TEST_F(MsxPatch, RewritesTheFirstLanguageBehindTheHeaderLine) {
  engine_.languages.ChooseDestination(1);
  SetDestination(1, "FIRST           ");
  EXPECT_TRUE(SameBytes(Saved(), With(1, 1, "FIRST           ")));
}

TEST_F(MsxPatch, ClearsModified) {
  Type("XY");
  ExpectSaved();
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(MsxPatch, OverwritesTheFirstLanguageWhenANewOneWasNamed) {
  engine_.languages.StartNewLanguage(2);
  ASSERT_EQ(set_.DestLang, 0);
  dialogs_.input_answers = {"english"};
  const std::string saved = Saved();
  const std::string second_text = HexOf(MsxMessage(2, 454));
  EXPECT_EQ(saved.size(), bytes_.size());
  EXPECT_EQ(saved.substr(44 + 454 * 46 + 10, 32), second_text) << "as language 1";
  EXPECT_EQ(saved.substr(44 + 909 * 46 + 10, 32), second_text) << "still as language 2";
  EXPECT_EQ(set_.DestLang, 0);
  EXPECT_FALSE(menus().mnuDes[3].visible);
}

// The first line held one byte less than the new one: the language grows by two characters, and the
// two characters behind it are lost.
TEST_F(MsxPatch, ShiftsTheLinesThatFollowADifferentLength) {
  const std::string old_line = S2Line(0xFF0000, MsxMessage(1, 0));
  const std::string short_line = "S213FF0000" + HexOf(MsxMessage(1, 0).substr(0, 15)) + "AA";
  std::string bytes = bytes_;
  Open("FILE.MSX", bytes.replace(44, old_line.size(), short_line));
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  SetDestination(0, std::string(16, 'A'));
  Type(std::string(16, 'A'));
  const std::string saved = Saved();
  // 0x13 + 0xFF + 16 x 0x41 = 0x522
  EXPECT_EQ(saved.substr(44, 44), "S213FF0000" + HexOf(std::string(16, 'A')) + "DD");
  EXPECT_TRUE(SameBytes(saved.substr(44 + 46), bytes_.substr(44 + 46, 454 * test::kMsxLine) +
                                                   bytes_.substr(44 + 455 * 46 + 2)));
}

TEST_F(MsxPatch, LeavesAFileThatEndsInsideTheLanguageAsItWas) {
  const std::string cut = bytes_.substr(0, bytes_.size() - 46);
  folder_.Write("FILE.MSX", cut);
  EXPECT_THAT(ReasonOfFailure(), HasSubstr("is not the file any more"));
  EXPECT_TRUE(SameBytes(Slurp(folder_ / "FILE.MSX"), cut));
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(MsxPatch, EndsALastLineThatHadNoEnd) {
  Open("OPEN.MSX", bytes_.substr(0, bytes_.size() - 2));
  engine_.languages.ChooseDestination(2);
  EXPECT_EQ(engine_.writer.Save().result, SaveOutcome::kSaved);
  EXPECT_TRUE(SameBytes(Slurp(folder_ / "OPEN.MSX"), bytes_));
}

TEST_F(MsxPatch, LeavesAFileWhoseLinesDoNotEndInCrLfAsItWas) {
  std::string bytes = bytes_;
  bytes.erase(44 + 500 * 46 - 2, 1);
  folder_.Write("FILE.MSX", bytes);
  EXPECT_THAT(ReasonOfFailure(), HasSubstr("is not the file any more"));
  EXPECT_TRUE(SameBytes(Slurp(folder_ / "FILE.MSX"), bytes));
}

TEST_F(MsxPatch, TellsThatTheDirectoryIsNotReady) {
  fs::remove_all(folder_.path());
  ReasonOfFailure();
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].text, " Directory not ready");
}

TEST_F(MessageFileWriterTest, WritesNothingWithoutAnOpenFile) {
  dialogs_.input_answers = {"english"};
  EXPECT_EQ(engine_.writer.Save().result, SaveOutcome::kNothingWritten);
  EXPECT_THAT(dialogs_.save_requests, IsEmpty());
}

class SaveAs : public MesPatch {
 protected:
  SaveAs() { Edit(MesFile{.names = {"Default", "ITALIANO", "ENGLISH"}}); }

  SaveOutcome SaveAsPath(const fs::path& path) {
    dialogs_.file_answers = {path};
    return engine_.writer.SaveAs();
  }
};

TEST_F(SaveAs, CopiesTheFileAndSavesIntoTheCopy) {
  Type("XY");
  EXPECT_EQ(SaveAsPath(folder_ / "COPY.MES").result, SaveOutcome::kSaved);
  EXPECT_EQ(Slurp(folder_ / "COPY.MES"), Patched(80, "XY  "));
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), bytes_);
}

TEST_F(SaveAs, OpensTheCopy) {
  SaveAsPath(folder_ / "COPY.MES");
  EXPECT_EQ(set_.CurrentFileName, folder_ / "COPY.MES");
  EXPECT_EQ(set_.CurrentFileType, ".MES");
  EXPECT_EQ(view().caption, "COPY.MES");
  EXPECT_EQ(engine_.workspace.folders.current, folder_.path());
}

TEST_F(SaveAs, ReplacesALongerFileWhole) {
  folder_.Write("COPY.MES", std::string(1000, '#'));
  SaveAsPath(folder_ / "COPY.MES");
  EXPECT_EQ(Slurp(folder_ / "COPY.MES"), bytes_);
}

TEST_F(SaveAs, UnderTheSameNameOnlySaves) {
  Type("XY");
  EXPECT_EQ(SaveAsPath(folder_ / "FILE.MES").result, SaveOutcome::kSaved);
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), Patched(80, "XY  "));
}

TEST_F(SaveAs, UnderAnotherSpellingOfTheSameFileOnlySaves) {
  Type("XY");
  EXPECT_EQ(SaveAsPath(folder_ / "./FILE.MES").result, SaveOutcome::kSaved);
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), Patched(80, "XY  "));
}

TEST_F(SaveAs, AsksForAMesFile) {
  SaveAsPath("");
  ASSERT_THAT(dialogs_.save_requests, SizeIs(1));
  EXPECT_EQ(dialogs_.save_requests[0].initial_name, "*.MES");
  EXPECT_EQ(dialogs_.save_requests[0].default_extension, "MES");
  EXPECT_THAT(dialogs_.save_requests[0].filters, ElementsAre(FileFilter{"Message", "MES"}));
  EXPECT_TRUE(dialogs_.save_requests[0].overwrite_prompt);
}

TEST_F(SaveAs, DoesNothingWhenItIsCancelled) {
  Type("XY");
  for (const char* answer : {"", "*.MES"}) {
    EXPECT_EQ(SaveAsPath(answer).result, SaveOutcome::kNothingWritten) << answer;
  }
  EXPECT_EQ(folder_.Names(), "FILE.MES");
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), bytes_);
  EXPECT_EQ(set_.CurrentFileName, folder_ / "FILE.MES");
  EXPECT_EQ(set_.Modified, kTrue);
}

TEST_F(SaveAs, KeepsTheOldFileOpenWhenTheCopyFails) {
  Type("XY");
  EXPECT_THROW(SaveAsPath(folder_ / "gone/COPY.MES"), FileError);
  EXPECT_EQ(set_.CurrentFileName, folder_ / "FILE.MES");
  EXPECT_EQ(view().caption, "FILE.MES");
  EXPECT_EQ(set_.Modified, kTrue);
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), bytes_);
}

TEST_F(SaveAs, NamesANewLanguageInTheCopy) {
  engine_.languages.StartNewLanguage(0);
  dialogs_.input_answers = {"deutsch"};
  EXPECT_EQ(SaveAsPath(folder_ / "COPY.MES").result, SaveOutcome::kSaved);
  EXPECT_EQ(Slurp(folder_ / "COPY.MES"), bytes_ + "DEUTSCH             " + std::string(12, ' '));
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), bytes_);
}

TEST_F(MessageFileWriterTest, SavesAnMsxFileAs) {
  Open("FILE.MSX", MsxFile(1));
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  dialogs_.file_answers = {"*.MSX"};
  EXPECT_EQ(engine_.writer.SaveAs().result, SaveOutcome::kNothingWritten);
  dialogs_.file_answers = {folder_ / "COPY.MSX"};
  EXPECT_EQ(engine_.writer.SaveAs().result, SaveOutcome::kSaved);
  EXPECT_EQ(dialogs_.save_requests.back().initial_name, "*.MSX");
  EXPECT_EQ(dialogs_.save_requests.back().default_extension, "MSX");
  EXPECT_THAT(dialogs_.save_requests.back().filters, ElementsAre(FileFilter{"Message", "MSX"}));
  EXPECT_TRUE(SameBytes(Slurp(folder_ / "COPY.MSX"), MsxFile(1)));
}

TEST_F(MessageFileWriterTest, SavesNothingAsWithoutAnOpenFile) {
  EXPECT_THROW(engine_.writer.SaveAs(), Error);
  EXPECT_THAT(dialogs_.save_requests, IsEmpty());
}

class NonSave : public MesPatch {
 protected:
  NonSave() {
    Edit(MesFile());
    Type("XY");
  }

  bool Answer(MessageAnswer answer) {
    dialogs_.yes_no_answers = {answer};
    return engine_.writer.NonSave();
  }
};

TEST_F(NonSave, AsksNothingWithoutChanges) {
  set_.Modified = kFalse;
  EXPECT_TRUE(engine_.writer.NonSave());
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(NonSave, AsksWhetherToSave) {
  Answer(MessageAnswer::kNo);
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kQuestion);
  EXPECT_EQ(dialogs_.messages[0].buttons, MessageButtons::kYesNo);
  EXPECT_EQ(dialogs_.messages[0].text, "text 43");
  EXPECT_EQ(dialogs_.messages[0].title, "text 42");
}

TEST_F(NonSave, SavesOnYes) {
  EXPECT_TRUE(Answer(MessageAnswer::kYes));
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), Patched(80, "XY  "));
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(NonSave, DropsTheMarkOnNo) {
  EXPECT_TRUE(Answer(MessageAnswer::kNo));
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), bytes_);
  EXPECT_EQ(set_.Modified, kFalse);
}

TEST_F(NonSave, TellsThatASaveFailed) {
  fs::remove(folder_ / "FILE.MES");
  EXPECT_FALSE(Answer(MessageAnswer::kYes));
}

}  // namespace
}  // namespace vendlingua
