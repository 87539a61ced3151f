#include "unit/operations/source_import_test.h"

namespace vendlingua {
namespace {

using test::kText16;
using test::SourceImportTest;
using test::SourceLines;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

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

}  // namespace
}  // namespace vendlingua
