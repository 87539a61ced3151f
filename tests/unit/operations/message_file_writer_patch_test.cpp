#include <filesystem>
#include <string>

#include "support/full_disk.h"
#include "support/skip_on_windows.h"
#include "unit/operations/message_file_writer_test.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::Codes;
using test::MesFile;
using test::Slurp;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class MesPatch : public test::EditedMesFile {};

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
  SKIP_ON_WINDOWS("limit for the size of files");
  Edit(MesFile());
  Type("XY");
  const test::FullDisk disk(10);
  EXPECT_THAT(ReasonOfFailure(), HasSubstr("FILE.MES: cannot be written"));
  EXPECT_EQ(Slurp(folder_ / "FILE.MES"), bytes_);
  EXPECT_EQ(folder_.Names(), "FILE.MES");
}

TEST_F(MesPatch, IsNotWrittenIntoWhatIsNoFile) {
  SKIP_ON_WINDOWS("links for everybody");
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

}  // namespace
}  // namespace vendlingua
