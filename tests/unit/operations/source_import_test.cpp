#include "unit/operations/source_import_test.h"

namespace vendlingua {
namespace {

using test::Slurp;
using test::SourceImportTest;
using test::SourceLine;
using test::SourceLines;
using testing::ElementsAre;
using testing::SizeIs;

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

}  // namespace
}  // namespace vendlingua
