#include "core/operations/source_import.h"

#include <gmock/gmock.h>

#include <deque>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform/errors.h"
#include "support/engine_test.h"

namespace vendlingua {
namespace {

using test::MesFile;
using test::Slurp;
using test::SourceLine;
using test::SourceLines;
using test::Text;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

const std::string kText16(16, 'x');

// Imports sources through File, Open and answers its questions: by default two languages whose
// memory of 24 bytes holds three messages of four cells each.
class SourceImportTest : public test::EngineTest {
 protected:
  OpenOutcome Import(std::string_view source) { return ImportInto(source, folder_ / "NEW.MES"); }

  OpenOutcome ImportInto(std::string_view source, const std::filesystem::path& target) {
    dialogs_.file_answers = {folder_.Write("SOURCE.MES", source), target};
    dialogs_.input_answers = answers_;
    return engine_.opener.Open();
  }

  std::string ReasonOfRefusal(std::string_view source) {
    try {
      Import(source);
    } catch (const Error& error) {
      return error.what();
    }
    return "not refused";
  }

  std::vector<InputPurpose> AskedQuestions() const {
    std::vector<InputPurpose> purposes;
    for (const InputRequest& input : dialogs_.inputs) {
      purposes.push_back(input.purpose);
    }
    return purposes;
  }

  void ExpectNothingWrittenAndNoFileOpen() const {
    EXPECT_EQ(folder_.Names(), "SOURCE.MES");
    EXPECT_EQ(set_.CurrentFileType, "");
    EXPECT_TRUE(set_.CurrentFileName.empty());
  }

  std::deque<std::string> answers_ = {"2", "1", "&H6000", "24", "italiano"};
  const std::string three_texts_ = SourceLine("ABCD") + SourceLine("EFGH") + SourceLine("IJKL");
};

TEST_F(SourceImportTest, AsksForTheMemoryLayoutAndTheName) {
  EXPECT_EQ(Import(three_texts_), OpenOutcome::kOpened);
  ASSERT_THAT(AskedQuestions(),
              ElementsAre(InputPurpose::kLanguageCount, InputPurpose::kLanguageMessage,
                          InputPurpose::kMemoryStart, InputPurpose::kMemoryLength,
                          InputPurpose::kNewLanguageName));
  EXPECT_EQ(dialogs_.inputs[0].prompt, "n° Lingue?");
  EXPECT_EQ(dialogs_.inputs[0].default_answer, "1");
  EXPECT_EQ(dialogs_.inputs[1].prompt, "n° messaggio lingua");
  EXPECT_EQ(dialogs_.inputs[1].default_answer, "1");
  EXPECT_EQ(dialogs_.inputs[2].prompt, "Inizio Memoria? (Byte)");
  EXPECT_EQ(dialogs_.inputs[3].prompt, "Lunghezza Blocco Memoria? (Byte)");
  EXPECT_EQ(dialogs_.inputs[3].default_answer, "&H2000");
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(dialogs_.inputs[i].title, "Configura");
  }
}

TEST_F(SourceImportTest, ProposesTheHighStartForSdata) {
  Import(".SDATA\r\n" + three_texts_);
  EXPECT_EQ(dialogs_.inputs.at(2).default_answer, "&HFF8000");
}

TEST_F(SourceImportTest, ProposesTheLowStartWithoutSdata) {
  Import(three_texts_);
  EXPECT_EQ(dialogs_.inputs.at(2).default_answer, "&H6000");
}

TEST_F(SourceImportTest, WritesTheDefaultBlockAndTheFirstLanguage) {
  Import(three_texts_);
  const std::string texts = "ABCDEFGHIJKL    ";
  EXPECT_EQ(Slurp(folder_ / "NEW.MES"), std::string("\x02\x03") + "0000010002000060000018" +
                                            "Default             " + texts +
                                            "ITALIANO            " + texts);
}

TEST_F(SourceImportTest, TakesTheAnswersIntoTheHeader) {
  answers_ = {"9 lingue", "&H10", "&HFF8000", "&H8000", "italiano"};
  Import(three_texts_);
  EXPECT_EQ(Slurp(folder_ / "NEW.MES").substr(0, 24),
            std::string("\x09\x03") + "0000100002" + "00FF8000" + "8000");
}

TEST_F(SourceImportTest, DividesTheMemoryByLanguagesAndWidth) {
  answers_ = {"9", "1", "&H6000", "1000", "italiano"};
  Import(three_texts_);
  EXPECT_EQ(set_.LangStride, 27);  // 1000 / 9 is 111, 111 / 4 is 27
}

TEST_F(SourceImportTest, TakesTheLanguageMessageFromTheLabel) {
  answers_ = {"1", "&H6000", "&H2000", "italiano"};
  Import(SourceLines(11, "ABCD") + "MNLING DC.B 'NAME'\r\n" + SourceLine("EFGH"));
  EXPECT_THAT(AskedQuestions(), testing::Not(testing::Contains(InputPurpose::kLanguageMessage)));
  EXPECT_EQ(set_.HeaderCount, 11);
  EXPECT_EQ(set_.HeaderBit0, kTrue);
}

TEST_F(SourceImportTest, CountsOnlyTheFirstLabel) {
  answers_ = {"1", "&H6000", "&H2000", "italiano"};
  Import(SourceLine("ABCD") + "MNLING:\r\n" + SourceLine("EFGH") + "MNLING:\r\n");
  EXPECT_EQ(set_.HeaderCount, 1);
}

// A label before the first text is seen, but the number 0 counts as none.
TEST_F(SourceImportTest, AsksForTheLanguageMessageWhenTheLabelStandsBeforeTheFirstText) {
  Import("MNLING:\r\n" + three_texts_);
  EXPECT_THAT(AskedQuestions(), testing::Contains(InputPurpose::kLanguageMessage));
  EXPECT_EQ(set_.HeaderCount, 1);
  EXPECT_EQ(set_.HeaderBit0, kTrue);
}

TEST_F(SourceImportTest, SetsNoHeaderBitsWithoutLabelAndSdata) {
  Import(three_texts_);
  EXPECT_EQ(set_.HeaderBit0, kFalse);
  EXPECT_EQ(set_.HeaderBit1, kFalse);
}

TEST_F(SourceImportTest, StoresSdataAndTheLabelInTheFlags) {
  answers_ = {"1", "&H6000", "&H2000", "italiano"};
  Import(".SDATA\r\n" + SourceLine("ABCD") + "MNLING:\r\n" + SourceLine("EFGH"));
  EXPECT_EQ(Slurp(folder_ / "NEW.MES").substr(2, 2), "03");
}

TEST_F(SourceImportTest, StoresDisplayTypeZeroWhateverWasChosenBefore) {
  engine_.editing.ChooseDisplayType(1);
  Import(three_texts_);
  EXPECT_EQ(Slurp(folder_ / "NEW.MES").substr(2, 2), "00");
}

TEST_F(SourceImportTest, ReadsAnApostropheThatIsDoubledInTheSource) {
  answers_ = {"1", "1", "&H6000", "&H2000", "italiano"};
  Import(" DC.B 'AB''CD'\r\n");
  EXPECT_EQ(Slurp(folder_ / "NEW.MES").substr(44, 5), "AB'CD");
}

TEST_F(SourceImportTest, LoadsTheFileThatItWrote) {
  Import(three_texts_);
  EXPECT_EQ(set_.CurrentFileName, folder_ / "NEW.MES");
  EXPECT_EQ(set_.CurrentFileType, ".MES");
  EXPECT_EQ(set_.LastMsg, 2);
  EXPECT_EQ(set_.LastCol, 3);
  EXPECT_EQ(set_.Modified, kFalse);
  EXPECT_EQ(menus().mnuori[0].caption, "Default");
  EXPECT_EQ(menus().mnuDes[1].caption, "ITALIANO");
  EXPECT_TRUE(menus().mnuDes[1].visible);
  EXPECT_TRUE(menus().mnuOrig.enabled);
  EXPECT_EQ(view().HScroll1.max, 2);
}

TEST_F(SourceImportTest, LeavesEveryDestinationTextEmptyAndSavingEnabled) {
  Import(three_texts_);
  EXPECT_EQ(set_.DestText[0], DisplayText());
  EXPECT_EQ(set_.DestText[2], DisplayText());
  EXPECT_EQ(set_.DestLang, 0);
  EXPECT_TRUE(menus().mnuSave.enabled);
  EXPECT_TRUE(view().Command1Enabled);
}

// No destination is open: a save must not empty the language that was imported.
TEST_F(SourceImportTest, IsFollowedBySavesThatStartANewLanguage) {
  Import(three_texts_);
  const std::string imported = Slurp(folder_ / "NEW.MES");
  dialogs_.input_answers = {"english"};
  EXPECT_EQ(engine_.writer.Save().result, SaveOutcome::kSaved);
  EXPECT_EQ(Slurp(folder_ / "NEW.MES"), imported + "ENGLISH             " + std::string(12, ' '));
}

TEST_F(SourceImportTest, AsksOnceForASourceWithTextsBeforeItsOnlyDirective) {
  Import(SourceLine("ABCD") + " ORG 1\r\n" + SourceLine("EFGH"));
  EXPECT_THAT(AskedQuestions(), SizeIs(5));
  EXPECT_EQ(set_.LastMsg, 1);
}

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

TEST_F(SectionImportTest, KeepsTheLanguagesThatWereSavedBeforeAWidthError) {
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
  EXPECT_EQ(Slurp(folder_ / "NEW.MES").size(), 24 + 2 * (20 + 4 * 4)) << "the first section";
}

TEST_F(SectionImportTest, WritesNothingWhenALaterSectionCannotBeRead) {
  EXPECT_THAT(ReasonOfRefusal(two_sections_ + third_section_ + "; don't\r\n"),
              testing::AllOf(HasSubstr("line 10"), HasSubstr("; don't")));
  EXPECT_THAT(dialogs_.inputs, IsEmpty());
  EXPECT_EQ(folder_.Names(), "SOURCE.MES");
}

// Save or Exit would otherwise ask for the name of a language that is nowhere.
TEST_F(SourceImportTest, LeavesNothingToSaveWhenItIsStopped) {
  Import(SourceLine("ABCD") + SourceLine("EFG"));
  EXPECT_FALSE(menus().mnuSave.enabled);
  EXPECT_FALSE(menus().mnuOrig.enabled);
  EXPECT_EQ(view().caption, "Vendlingua");
  dialogs_.messages.clear();
  EXPECT_TRUE(engine_.writer.NonSave());
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(SourceImportTest, LeavesNothingToSaveWhenItsFileCannotBeWritten) {
  EXPECT_THROW(ImportInto(three_texts_, folder_ / "none" / "NEW.MES"), Error);
  EXPECT_FALSE(menus().mnuSave.enabled);
  EXPECT_FALSE(set_.save_failed);
  dialogs_.messages.clear();
  EXPECT_TRUE(engine_.writer.NonSave());
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(SourceImportTest, KeepsTheNameOfALanguageThatIsSavedAtOnce) {
  Import(three_texts_);
  dialogs_.input_answers = {"english"};
  EXPECT_EQ(engine_.writer.Save().result, SaveOutcome::kSaved);
  const std::string saved = Slurp(folder_ / "NEW.MES");
  EXPECT_THAT(saved, HasSubstr("ENGLISH             "));
  EXPECT_EQ(engine_.writer.Save().result, SaveOutcome::kSaved);
  EXPECT_EQ(Slurp(folder_ / "NEW.MES"), saved);
}

TEST_F(SourceImportTest, TellsWhichLinesHoldTextsThatAreTooWideToEdit) {
  answers_ = {"1", "1", "&H6000", "&H2000", "italiano"};
  Import(SourceLine("ABCD") + SourceLine(std::string(41, 'x')) + SourceLine(std::string(60, 'y')));
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kInformation);
  EXPECT_THAT(dialogs_.messages[0].text, testing::EndsWith(": 2, 3"));
  EXPECT_EQ(set_.Width(), 60U);
  const std::string blanks(20, ' ');
  EXPECT_THAT(Slurp(folder_ / "NEW.MES"), HasSubstr(std::string(40, 'y') + blanks));
}

TEST_F(SourceImportTest, RefusesATextThatIsShorterThanOneBefore) {
  EXPECT_EQ(Import(SourceLine("ABCD") + SourceLine("EFG")), OpenOutcome::kRefused);
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kCritical);
  EXPECT_EQ(dialogs_.messages[0].text, "Lughezza messaggi\nerrata");
  EXPECT_EQ(dialogs_.messages[0].title, "ERRORE");
  ExpectNothingWrittenAndNoFileOpen();
}

TEST_F(SourceImportTest, KeepsTheTextsThatWereTakenBeforeItWasStopped) {
  Import(SourceLine("ABCD") + SourceLine("EFG"));
  EXPECT_EQ(Text(set_.OriginText[0].First(5)), "ABCD ");
  EXPECT_EQ(Text(set_.DestText[0].First(5)), "ABCD ");
}

TEST_F(SourceImportTest, WidensTheMessagesForALongerText) {
  Import(SourceLine("ABC") + SourceLine("DEFG"));
  EXPECT_EQ(set_.LastCol, 3);
  EXPECT_EQ(Slurp(folder_ / "NEW.MES").substr(44, 8), "ABC DEFG");
}

TEST_F(SourceImportTest, GoesOnWhenTheMessagesFillTheMemoryExactly) {
  answers_ = {"2", "1", "&H6000", "24", "italiano"};
  EXPECT_EQ(Import(three_texts_), OpenOutcome::kOpened);
}

TEST_F(SourceImportTest, StopsWhenTheMessagesNeedOneByteMore) {
  answers_ = {"2", "1", "&H6000", "23"};
  EXPECT_EQ(Import(three_texts_), OpenOutcome::kRefused);
  EXPECT_THAT(dialogs_.messages, SizeIs(1));
  ExpectNothingWrittenAndNoFileOpen();
}

TEST_F(SourceImportTest, GoesOnWithNineLanguagesIn64KiB) {
  answers_ = {"9", "169", "&HFF0000", "&H10000", "italiano"};
  EXPECT_EQ(Import(SourceLines(455, kText16)), OpenOutcome::kOpened);
  EXPECT_THAT(dialogs_.messages, IsEmpty());
  EXPECT_EQ(Slurp(folder_ / "NEW.MES").size(), 24 + 2 * (20 + 456 * 16));
}

TEST_F(SourceImportTest, GoesOnWithOneLanguageIn8KiB) {
  answers_ = {"1", "169", "&HFF8000", "&H2000", "italiano"};
  EXPECT_EQ(Import(SourceLines(455, kText16)), OpenOutcome::kOpened);
  EXPECT_EQ(set_.LangStride, 512);
}

TEST_F(SourceImportTest, TellsHowMuchMemoryTwoLanguagesIn8KiBWouldNeed) {
  answers_ = {"2", "169", "&HFF8000", "&H2000"};
  EXPECT_EQ(Import(SourceLines(455, kText16)), OpenOutcome::kRefused);
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::kCritical);
  EXPECT_EQ(dialogs_.messages[0].text,
            "Memoria messaggi\ninsufficente\nMessaggi N° 455\nMemoria usata 14560");
  EXPECT_EQ(dialogs_.messages[0].title, "ERRORE");
  ExpectNothingWrittenAndNoFileOpen();
}

TEST(UsedMemory, MultipliesWidthTextsAndLanguages) {
  EXPECT_EQ(UsedMemory(16, 455, 9), 65520U);
  EXPECT_EQ(UsedMemory(16, 455, 31), 225680U);
}

TEST(UsedMemory, WrapsTheBytesOfOneLanguageAt16Bits) {
  EXPECT_EQ(UsedMemory(16, 4096, 3), 0U);
  EXPECT_EQ(UsedMemory(40, 2000, 3), 43392U);  // 80000 - 65536, three times
}

class StoppedSourceImportTest : public SourceImportTest {
 protected:
  // The last answer stops the import without a further question.
  void ExpectStoppedBy(std::deque<std::string> answers) {
    answers_ = std::move(answers);
    dialogs_.inputs.clear();
    EXPECT_EQ(Import(three_texts_), OpenOutcome::kRefused);
    EXPECT_THAT(dialogs_.inputs, SizeIs(answers_.size()));
    EXPECT_THAT(dialogs_.messages, IsEmpty());
    ExpectNothingWrittenAndNoFileOpen();
  }

  // The last answer ends the import in an error with `text` in it.
  void ExpectRefused(std::deque<std::string> answers, const std::string& text) {
    answers_ = std::move(answers);
    EXPECT_THAT(ReasonOfRefusal(three_texts_),
                testing::AllOf(HasSubstr("SOURCE.MES: "), HasSubstr(text)));
    ExpectNothingWrittenAndNoFileOpen();
  }
};

TEST_F(StoppedSourceImportTest, StopsForNoLanguages) {
  ExpectStoppedBy({"0"});
  ExpectStoppedBy({""});
  ExpectStoppedBy({"tre"});
}

TEST_F(StoppedSourceImportTest, StopsForLanguageMessageZero) {
  ExpectStoppedBy({"2", "0"});
  ExpectStoppedBy({"2", ""});
  ExpectStoppedBy({"2", "uno"});
}

TEST_F(StoppedSourceImportTest, StopsForMemoryStartZero) {
  ExpectStoppedBy({"2", "1", "&H0"});
  ExpectStoppedBy({"2", "1", ""});
  ExpectStoppedBy({"2", "1", "H6000"});
}

TEST_F(StoppedSourceImportTest, StopsForMemoryLengthZero) {
  ExpectStoppedBy({"2", "1", "&H6000", "0"});
  ExpectStoppedBy({"2", "1", "&H6000", "&H0"});
}

// From 32 on the first byte would make a source of the file.
TEST_F(StoppedSourceImportTest, RefusesMoreThan31Languages) {
  ExpectRefused({"32"}, "n° Lingue: 32");
  ExpectRefused({"256"}, "n° Lingue: 256");
  ExpectRefused({"99999999999999999999"}, "n° Lingue: 18446744073709551615");
}

TEST_F(StoppedSourceImportTest, RefusesALanguageMessageBeyond16Bits) {
  ExpectRefused({"2", "65536"}, "n° messaggio lingua: 65536");
}

TEST_F(StoppedSourceImportTest, RefusesAMemoryStartBeyond32Bits) {
  ExpectRefused({"2", "1", "&H100000000"}, "Inizio Memoria: 4294967296");
}

TEST_F(StoppedSourceImportTest, RefusesAMemoryLengthBeyond31Bits) {
  ExpectRefused({"2", "1", "&H6000", "2147483648"}, "Lunghezza Blocco Memoria: 2147483648");
}

TEST_F(StoppedSourceImportTest, RefusesAMemoryLengthThatIsNoNumberAsAWhole) {
  ExpectRefused({"2", "1", "&H6000", ""}, "Lunghezza Blocco Memoria: \"\"");
  ExpectRefused({"2", "1", "&H6000", "tanta"}, "Lunghezza Blocco Memoria: \"tanta\"");
  ExpectRefused({"2", "1", "&H6000", "24 byte"}, "Lunghezza Blocco Memoria: \"24 byte\"");
}

TEST_F(SourceImportTest, TakesThirtyOneLanguages) {
  answers_ = {"31", "1", "&H6000", "&H2000", "italiano"};
  EXPECT_EQ(Import(three_texts_), OpenOutcome::kOpened);
  EXPECT_EQ(set_.LangCount, 31);
}

TEST_F(SourceImportTest, TakesTheHighestMemoryStart) {
  answers_ = {"2", "1", "&HFFFFFFFF", "24", "italiano"};
  Import(three_texts_);
  EXPECT_EQ(set_.MemStart, 0xFFFFFFFFU);
}

TEST_F(SourceImportTest, RefusesAMemoryThatGivesTooManyMessagesALanguage) {
  answers_ = {"1", "1", "&H6000", "2147483647"};
  EXPECT_THAT(ReasonOfRefusal(three_texts_), HasSubstr("2147483647"));
  ExpectNothingWrittenAndNoFileOpen();
}

// 32764 / 4 are 8191 slots; 4 x (8191 + 1) + 20 bytes wrap to -32748.
TEST_F(SourceImportTest, RefusesAMemoryWhoseBlocksWouldLieBeforeTheStartOfTheFile) {
  answers_ = {"1", "1", "&H6000", "32764"};
  EXPECT_THAT(ReasonOfRefusal(three_texts_), HasSubstr("-32748"));
  ExpectNothingWrittenAndNoFileOpen();
}

// 32740 / 4 are 8185 slots; 4 x (8185 + 1) + 20 bytes are 32764.
TEST_F(SourceImportTest, TakesTheLargestBlocksThatDoNotWrap) {
  answers_ = {"1", "1", "&H6000", "32740", "italiano"};
  EXPECT_EQ(Import(three_texts_), OpenOutcome::kOpened);
  EXPECT_EQ(set_.BlockLength, 32764.0F);
}

// 65520 / 16 are 4095 slots; 16 x (4095 + 1) + 20 bytes wrap to 20.
TEST_F(SourceImportTest, RefusesAMemoryWhoseBlocksWouldOverlap) {
  answers_ = {"1", "1", "&H6000", "&HFFF0", "italiano"};
  EXPECT_THAT(ReasonOfRefusal(SourceLines(3, kText16)),
              testing::AllOf(HasSubstr("SOURCE.MES: "), HasSubstr("4096 message slots of 16 cells"),
                             HasSubstr("wrap to 20 bytes")));
  ExpectNothingWrittenAndNoFileOpen();
}

// 73728 / 16 are 4608 slots; 16 x (4608 + 1) + 20 bytes wrap to 8228: room for the texts, but not
// for the slots that a new file has.
TEST_F(SourceImportTest, RefusesAMemoryWhoseBlocksWouldBeShorterThanTheirSlots) {
  answers_ = {"1", "1", "&H6000", "73728", "italiano"};
  EXPECT_THAT(ReasonOfRefusal(SourceLines(3, kText16)), HasSubstr("wrap to 8228 bytes"));
  ExpectNothingWrittenAndNoFileOpen();
}

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
