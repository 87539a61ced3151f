#include "core/marks/document_marks.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "core/operations/rename_language.h"
#include "core/platform/errors.h"
#include "support/engine_test.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::MesFile;

const MessageMark kDoneMark{Mark::kDone, "as the sample"};

class DocumentMarksTest : public test::EngineTest {
 protected:
  DocumentMarksTest() { EditFile("A.MES", file_); }

  void EditFile(const char* name, const MesFile& file) {
    Open(name, file.Bytes());
    engine_.languages.ChooseOrigin(1);
    engine_.languages.ChooseDestination(1);
    marks_.Follow(set_);
  }

  fs::path MarksFile() const { return folder_ / "A.MES.marks"; }

  MesFile file_{.names = {"Default", "ITALIANO", "ENGLISH"}};
  DocumentMarks marks_;
};

TEST_F(DocumentMarksTest, NothingIsMarkedAtFirst) {
  EXPECT_TRUE(marks_.CanMark());
  EXPECT_TRUE(marks_.Of(0).IsEmpty());
  EXPECT_TRUE(marks_.Of(1000000).IsEmpty());
  EXPECT_FALSE(fs::exists(MarksFile()));
}

TEST_F(DocumentMarksTest, AMarkIsKept) {
  marks_.Put(2, kDoneMark);
  EXPECT_EQ(marks_.Of(2), kDoneMark);
  DocumentMarks anew;
  anew.Follow(set_);
  EXPECT_EQ(anew.Of(2), kDoneMark);
  EXPECT_TRUE(anew.Of(1).IsEmpty());
}

TEST_F(DocumentMarksTest, TheFileGoesWithTheLastMark) {
  marks_.Put(2, kDoneMark);
  marks_.Put(2, {});
  EXPECT_FALSE(fs::exists(MarksFile()));
}

TEST_F(DocumentMarksTest, EveryLanguageHasItsOwn) {
  marks_.Put(2, kDoneMark);
  engine_.languages.ChooseDestination(2);
  marks_.Follow(set_);
  EXPECT_TRUE(marks_.Of(2).IsEmpty());
  marks_.Put(2, {Mark::kNeedsWork, ""});
  engine_.languages.ChooseDestination(1);
  marks_.Follow(set_);
  EXPECT_EQ(marks_.Of(2), kDoneMark);
}

TEST_F(DocumentMarksTest, AnotherOriginChangesNothing) {
  marks_.Put(2, kDoneMark);
  engine_.languages.ChooseOrigin(2);
  DocumentMarks anew;
  anew.Follow(set_);
  EXPECT_EQ(anew.Of(2), kDoneMark);
}

TEST_F(DocumentMarksTest, ANewLanguageCannotBeMarkedYet) {
  engine_.languages.StartNewLanguage(0);
  marks_.Follow(set_);
  EXPECT_FALSE(marks_.CanMark());
  marks_.Put(0, kDoneMark);
  EXPECT_FALSE(fs::exists(MarksFile()));
}

TEST_F(DocumentMarksTest, WhatSomebodyElseMarkedStays) {
  DocumentMarks other;
  other.Follow(set_);
  other.Put(0, {Mark::kNeedsWork, "other"});
  marks_.Put(2, kDoneMark);
  EXPECT_EQ(marks_.Of(0).remark, "other");
  EXPECT_EQ(marks_.Of(2), kDoneMark);
}

TEST_F(DocumentMarksTest, AFileThatIsNoneStaysAsItIs) {
  folder_.Write("A.MES.marks", "{\"shopping\": []}");
  DocumentMarks anew;
  anew.Follow(set_);
  EXPECT_EQ(anew.Unreadable(), MarksFile());
  EXPECT_FALSE(anew.CanMark());
  anew.Put(2, kDoneMark);
  EXPECT_EQ(test::Slurp(MarksFile()), "{\"shopping\": []}");
}

TEST_F(DocumentMarksTest, AFileThatBreaksMeanwhileStaysAsItIs) {
  folder_.Write("A.MES.marks", "broken");
  marks_.Put(2, kDoneMark);
  EXPECT_EQ(test::Slurp(MarksFile()), "broken");
}

// In the updated file the texts of the reference, "0000", "0111" and "0222", stand one further on.
TEST_F(DocumentMarksTest, AnUpdateCarriesMarksToTheMessageThatSaysTheSame) {
  marks_.Put(1, kDoneMark);
  std::string updated = file_.Bytes();
  updated.replace(updated.find("000001110222"), 12, "NEW!00000111");
  folder_.Write("B.MES", updated);
  fs::copy_file(MarksFile(), folder_ / "B.MES.marks");
  Open(folder_ / "B.MES");
  engine_.languages.ChooseOrigin(1);
  engine_.languages.ChooseDestination(1);
  marks_.Follow(set_);
  EXPECT_TRUE(marks_.Of(1).IsEmpty());
  EXPECT_EQ(marks_.Of(2), kDoneMark);
  marks_.Put(2, {Mark::kNeedsWork, ""});
  EXPECT_EQ(ReadMarks(folder_ / "B.MES")->size(), 1U);
}

TEST_F(DocumentMarksTest, AMarkOfATextThatStandsTwiceStaysWithItsNumberOrNowhere) {
  marks_.Put(1, kDoneMark);
  std::string updated = file_.Bytes();
  updated.replace(updated.find("000001110222"), 12, "0111NEW!0111");
  folder_.Write("B.MES", updated);
  fs::copy_file(MarksFile(), folder_ / "B.MES.marks");
  Open(folder_ / "B.MES");
  engine_.languages.ChooseOrigin(1);
  engine_.languages.ChooseDestination(1);
  marks_.Follow(set_);
  for (std::size_t message = 0; message < 3; ++message) {
    EXPECT_TRUE(marks_.Of(message).IsEmpty()) << message;
  }
  EXPECT_EQ(ReadMarks(folder_ / "B.MES")->size(), 1U);
}

TEST_F(DocumentMarksTest, AFailedWriteChangesNothing) {
  marks_.Put(1, kDoneMark);
  fs::remove(MarksFile());
  fs::rename(folder_.path(), folder_.path().string() + ".away");
  EXPECT_THROW(marks_.Put(2, kDoneMark), FileError);
  fs::rename(folder_.path().string() + ".away", folder_.path());
  EXPECT_TRUE(marks_.Of(2).IsEmpty());
  EXPECT_EQ(marks_.Of(1), kDoneMark);
}

TEST_F(DocumentMarksTest, ALanguageKeepsThemUnderANewName) {
  marks_.Put(1, kDoneMark);
  RenameLanguage(engine_.workspace, dialogs_, 1, NameField::FromCaption("FURLAN"));
  marks_.Follow(set_);
  EXPECT_EQ(marks_.Of(1), kDoneMark);
}

TEST_F(DocumentMarksTest, SaveAsTakesThemAlong) {
  marks_.Put(1, kDoneMark);
  dialogs_.file_answers = {folder_ / "COPY.MES"};
  engine_.writer.SaveAs();
  marks_.Follow(set_);
  EXPECT_EQ(marks_.Of(1), kDoneMark);
}

}  // namespace
}  // namespace vendlingua
