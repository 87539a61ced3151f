#include <filesystem>
#include <string>

#include "support/same_bytes.h"
#include "unit/operations/message_file_writer_test.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::Codes;
using test::SameBytes;
using test::Slurp;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const std::string kDefaultName = "Default             ";
const std::string kItalianName = "ITALIANO            ";
// A set without a destination, as an import leaves it: two languages of 3 + 1 slots of 4 cells.
class NewMesFile : public test::MessageFileWriterTest {
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

}  // namespace
}  // namespace vendlingua
