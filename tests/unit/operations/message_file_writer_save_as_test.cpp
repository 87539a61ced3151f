#include <filesystem>
#include <string>

#include "core/platform/errors.h"
#include "support/same_bytes.h"
#include "unit/operations/message_file_writer_test.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::MesFile;
using test::MsxFile;
using test::SameBytes;
using test::Slurp;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using SavingAs = test::MessageFileWriterTest;

class SaveAs : public test::EditedMesFile {
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

TEST_F(SavingAs, SavesAnMsxFileAs) {
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

TEST_F(SavingAs, SavesNothingAsWithoutAnOpenFile) {
  EXPECT_THROW(engine_.writer.SaveAs(), Error);
  EXPECT_THAT(dialogs_.save_requests, IsEmpty());
}

}  // namespace
}  // namespace vendlingua
