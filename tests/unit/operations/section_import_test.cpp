#include "support/full_disk.h"
#include "support/skip_on_windows.h"
#include "unit/operations/source_import_test.h"

namespace vendlingua {
namespace {

using test::FullDisk;
using test::Slurp;
using test::SourceImportTest;
using test::SourceLine;
using test::SourceLines;
using test::Text;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class SectionImportTest : public SourceImportTest {
 protected:
  const std::string two_sections_ = " ORG 1\r\n" + SourceLine("ABCD") + SourceLine("EFGH") +
                                    " ORG 2\r\n" + SourceLine("abcd") + SourceLine("efgh");
  const std::string third_section_ = " .SECT 3\r\n" + SourceLine("1234") + SourceLine("5678");
};

TEST_F(SectionImportTest, AsksTheQuestionsOnceForThreeSections) {
  answers_ = {"2", "1", "&H6000", "24", "uno", "due", "tre"};
  EXPECT_EQ(Import(two_sections_ + third_section_), OpenOutcome::kOpened);
  EXPECT_THAT(AskedQuestions(),
              ElementsAre(InputPurpose::kLanguageCount, InputPurpose::kLanguageMessage,
                          InputPurpose::kMemoryStart, InputPurpose::kMemoryLength,
                          InputPurpose::kNewLanguageName, InputPurpose::kNewLanguageName,
                          InputPurpose::kNewLanguageName));
}

TEST_F(SectionImportTest, MakesOneLanguageOfEachSection) {
  answers_ = {"2", "1", "&H6000", "24", "uno", "due", "tre"};
  Import(two_sections_ + third_section_);
  EXPECT_EQ(Slurp(folder_ / "NEW.MES"), std::string("\x02\x03") + "0000010001000060000018" +
                                            "Default             ABCDEFGH        " +
                                            "UNO                 ABCDEFGH        " +
                                            "DUE                 abcdefgh" + std::string(8, '\0') +
                                            "TRE                 12345678");
}

TEST_F(SectionImportTest, MakesNoLanguageOfADirectiveThatIsTheLastLine) {
  answers_ = {"2", "1", "&H6000", "24", "uno", "due"};
  EXPECT_EQ(Import(two_sections_ + " ORG 3\r\n"), OpenOutcome::kOpened);
  EXPECT_TRUE(dialogs_.input_answers.empty());
  EXPECT_EQ(Slurp(folder_ / "NEW.MES"), std::string("\x02\x03") + "0000010001000060000018" +
                                            "Default             ABCDEFGH        " +
                                            "UNO                 ABCDEFGH        " +
                                            "DUE                 abcdefgh");
}

TEST_F(SectionImportTest, AsksForTheFileOnlyOnce) {
  answers_ = {"2", "1", "&H6000", "24", "uno", "due", "tre"};
  Import(two_sections_ + third_section_);
  EXPECT_THAT(dialogs_.save_requests, SizeIs(1));
}

// The message of the language's name is known from the first time.
TEST_F(SectionImportTest, AsksTheQuestionsTwiceForTwoSections) {
  answers_ = {"2", "1", "&H6000", "24", "uno", "2", "&H6000", "24", "due"};
  EXPECT_EQ(Import(two_sections_), OpenOutcome::kOpened);
  EXPECT_THAT(AskedQuestions(),
              ElementsAre(InputPurpose::kLanguageCount, InputPurpose::kLanguageMessage,
                          InputPurpose::kMemoryStart, InputPurpose::kMemoryLength,
                          InputPurpose::kNewLanguageName, InputPurpose::kLanguageCount,
                          InputPurpose::kMemoryStart, InputPurpose::kMemoryLength,
                          InputPurpose::kNewLanguageName));
  EXPECT_EQ(menus().mnuDes[2].caption, "DUE");
}

TEST_F(SectionImportTest, StartsTheTextsOfEachSectionFromIndexZero) {
  answers_ = {"2", "1", "&H6000", "24", "uno", "due", "tre"};
  Import(two_sections_ + third_section_);
  EXPECT_EQ(Text(set_.OriginText[0].First(4)), "1234");
  EXPECT_EQ(Text(set_.OriginText[1].First(4)), "5678");
  EXPECT_EQ(set_.LastMsg, 1);
}

TEST_F(SectionImportTest, LeavesNoDestinationOpen) {
  answers_ = {"2", "1", "&H6000", "24", "uno", "due", "tre"};
  Import(two_sections_ + third_section_);
  EXPECT_EQ(set_.DestLang, 0);
  EXPECT_EQ(set_.DestText[0], DisplayText());
  EXPECT_EQ(set_.DestText[1], DisplayText());
}

TEST_F(SectionImportTest, KeepsTheLanguageMessageOfTheFirstSection) {
  answers_ = {"2", "1", "&H6000", "24", "uno", "due", "tre"};
  Import(two_sections_ + third_section_ + "MNLING:\r\n");
  EXPECT_EQ(set_.HeaderCount, 1);
  EXPECT_EQ(set_.HeaderBit0, kFalse);
}

// What fails leaves no file with a part of the languages.
TEST_F(SectionImportTest, WritesTheFileOfAllSectionsAtOnce) {
  SKIP_ON_WINDOWS("limit for the size of files");
  folder_.Write("NEW.MES", "an older file");
  answers_ = {"2", "1", "&H6000", "24", "uno", "2", "&H6000", "24", "due"};
  {
    const FullDisk disk(100);
    EXPECT_THAT(ReasonOfRefusal(two_sections_), HasSubstr("NEW.MES: cannot be written"));
  }
  EXPECT_EQ(Slurp(folder_ / "NEW.MES"), "an older file");
  EXPECT_EQ(folder_.Names(), "NEW.MES SOURCE.MES");
}

TEST_F(SectionImportTest, KeepsTheLanguagesThatWereTakenBeforeAWidthError) {
  answers_ = {"2", "1", "&H6000", "24", "uno"};
  EXPECT_EQ(Import(" ORG 1\r\n" + SourceLine("ABCD") + " ORG 2\r\n" + SourceLine("EFGH") +
                   SourceLine("IJK")),
            OpenOutcome::kRefused);
  EXPECT_EQ(Slurp(folder_ / "NEW.MES").size(), 24 + 2 * (20 + 4 * 4));
  EXPECT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(set_.CurrentFileType, "");
}

TEST_F(SectionImportTest, ShowsTheWidthErrorForTheFirstTextOfALaterSection) {
  answers_ = {"2", "1", "&H6000", "24", "uno"};
  EXPECT_EQ(Import(" ORG 1\r\n" + SourceLine("ABCD") + " ORG 2\r\n" + SourceLine("EF")),
            OpenOutcome::kRefused);
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].text, "Lughezza messaggi\nerrata");
}

// All languages of a file have messages of one width.
TEST_F(SectionImportTest, RefusesALaterSectionOfAnotherWidth) {
  EXPECT_THAT(
      ReasonOfRefusal(" ORG 1\r\n" + SourceLine("ABCD") + " ORG 2\r\n" + SourceLine("EFG")),
      testing::AllOf(HasSubstr("SOURCE.MES"), HasSubstr("section 2 are 3"), HasSubstr("4")));
  EXPECT_THAT(
      ReasonOfRefusal(" ORG 1\r\n" + SourceLine("ABCD") + " ORG 2\r\n" + SourceLine("EFGHI")),
      HasSubstr("5"));
  ExpectNothingWrittenAndNoFileOpen();
}

TEST_F(SectionImportTest, RefusesALaterSectionThatALanguageHasNoRoomFor) {
  answers_ = {"2", "1", "&H6000", "24", "uno", "due"};
  EXPECT_THAT(
      ReasonOfRefusal(two_sections_ + " ORG 3\r\n" + SourceLines(5, "IJKL")),
      testing::AllOf(HasSubstr("SOURCE.MES: "), HasSubstr("5 texts"), HasSubstr("room for 4")));
}

// 24 / 2 / 4 are 3 slots a language, 40 / 2 / 4 would be 5.
TEST_F(SectionImportTest, RefusesAnswersThatGiveALaterSectionAnotherStride) {
  answers_ = {"2", "1", "&H6000", "24", "uno", "2", "&H6000", "40"};
  EXPECT_THAT(ReasonOfRefusal(two_sections_),
              testing::AllOf(HasSubstr("5 messages"), HasSubstr("gave 3")));
  ExpectNothingWrittenAndNoFileOpen();
}

TEST_F(SectionImportTest, WritesNothingWhenALaterSectionCannotBeRead) {
  EXPECT_THAT(ReasonOfRefusal(two_sections_ + third_section_ + "; don't\r\n"),
              testing::AllOf(HasSubstr("line 10"), HasSubstr("; don't")));
  EXPECT_THAT(dialogs_.inputs, IsEmpty());
  EXPECT_EQ(folder_.Names(), "SOURCE.MES");
}

}  // namespace
}  // namespace vendlingua
