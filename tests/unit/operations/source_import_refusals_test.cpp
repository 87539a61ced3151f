#include "unit/operations/source_import_test.h"

namespace vendlingua {
namespace {

using test::MesFile;
using test::Slurp;
using test::SourceImportTest;
using test::SourceLine;
using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(SourceImportTest, EndsWithoutAFileWhenTheSaveIsCancelled) {
  EXPECT_EQ(ImportInto(three_texts_, ""), OpenOutcome::kRefused);
  ExpectNothingWrittenAndNoFileOpen();
}

TEST_F(SourceImportTest, EndsWithoutAFileWhenTheSaveDialogKeepsItsWildcard) {
  EXPECT_EQ(ImportInto(three_texts_, "*.MES"), OpenOutcome::kRefused);
  ExpectNothingWrittenAndNoFileOpen();
}

TEST_F(SourceImportTest, LeavesTheSourceAsItWas) {
  Import(three_texts_);
  EXPECT_EQ(Slurp(folder_ / "SOURCE.MES"), three_texts_);
}

TEST_F(SourceImportTest, NamesFileAndLineOfAQuoteAlone) {
  EXPECT_THAT(ReasonOfRefusal(SourceLine("ABCD") + "; don't\r\n"),
              testing::AllOf(HasSubstr("SOURCE.MES"), HasSubstr("line 2")));
}

TEST_F(SourceImportTest, RefusesASourceWithoutTexts) {
  EXPECT_THAT(ReasonOfRefusal("; nothing\r\n"), HasSubstr("SOURCE.MES"));
  EXPECT_THAT(dialogs_.inputs, IsEmpty());
}

TEST_F(SourceImportTest, RefusesASourceWhoseOnlyTextIsEmpty) {
  answers_ = {"2", "1", "&H6000", "24"};
  EXPECT_THAT(ReasonOfRefusal(" DC.B '\"\r\n"), HasSubstr("line 1"));
  ExpectNothingWrittenAndNoFileOpen();
}

TEST_F(SourceImportTest, RefusesAnEmptyFile) {
  EXPECT_THAT(ReasonOfRefusal(""), HasSubstr("SOURCE.MES"));
}

TEST_F(SourceImportTest, FailsWhenTheFolderOfTheNewFileIsMissing) {
  EXPECT_THROW(ImportInto(three_texts_, folder_ / "missing/NEW.MES"), Error);
  ExpectNothingWrittenAndNoFileOpen();
}

TEST_F(SourceImportTest, PutsTheOpenFileBackWhenItFails) {
  Open("OPEN.MES", MesFile{.mem_start = "00001234"}.Bytes());
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  const std::vector<std::deque<std::string>> refused_answers = {
      {"32"},
      {"2", "65536"},
      {"2", "1", "&H100000000"},
      {"2", "1", "&H6000", "2147483648"},
      {"2", "1", "&H6000", "tanta"},
      {"1", "1", "&H6000", "2147483647"},
  };
  for (const auto& answers : refused_answers) {
    answers_ = answers;
    EXPECT_NE(ReasonOfRefusal(three_texts_), "not refused") << answers.back();
    EXPECT_EQ(folder_.Names(), "OPEN.MES SOURCE.MES");
    EXPECT_EQ(set_.CurrentFileName, folder_ / "OPEN.MES");
    EXPECT_EQ(set_.CurrentFileType, ".MES");
    EXPECT_EQ(set_.LangCount, 2);
    EXPECT_EQ(set_.LastMsg, 2);
    EXPECT_EQ(set_.MemStart, 0x1234U);
    EXPECT_EQ(set_.DestLang, 1);
    EXPECT_EQ(Origin(0), "0000");
    EXPECT_EQ(Destination(2), "1222");
    EXPECT_EQ(menus().mnuDes[1].caption, "ITALIANO");
    EXPECT_TRUE(menus().mnuSave.enabled);
    EXPECT_TRUE(view().Text1.enabled);
  }
}

TEST_F(SourceImportTest, NeverStartsForAFirstByteOf31) {
  dialogs_.file_answers = {folder_.Write("BINARY.MES", MesFile{.lang_count = 31}.Bytes())};
  EXPECT_EQ(engine_.opener.Open(), OpenOutcome::kOpened);
  EXPECT_EQ(set_.LangCount, 31);
  EXPECT_THAT(dialogs_.inputs, IsEmpty());
}

TEST_F(SourceImportTest, StartsForAFirstByteOf32) {
  EXPECT_EQ(Import(" " + three_texts_), OpenOutcome::kOpened);
  EXPECT_THAT(dialogs_.inputs, testing::Not(IsEmpty()));
}

}  // namespace
}  // namespace vendlingua
