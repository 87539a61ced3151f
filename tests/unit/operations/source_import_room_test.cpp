#include "unit/operations/source_import_test.h"

namespace vendlingua {
namespace {

using test::kText16;
using test::Slurp;
using test::SourceImportTest;
using test::SourceLine;
using test::SourceLines;
using test::Text;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

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

}  // namespace
}  // namespace vendlingua
