#include "core/presentation/compiler_status.h"

#include <gmock/gmock.h>

namespace vendlingua {
namespace {

class CompilerStatusTest : public testing::Test {
 protected:
  CompilerStatusTest() {
    ui_text_.Set(57, "Files:");
    ui_text_.Set(58, "To choose:");
    ui_text_.Set(59, "chosen:");
    ui_text_.Set(74, "Short:");
    ui_text_.Set(static_cast<std::size_t>(UiTextId::kDamagedRecords), "{0} damaged, first {1}");
  }

  UiText ui_text_;
};

TEST_F(CompilerStatusTest, CountsTheTickedLanguages) {
  CompilerState compiler;
  EXPECT_EQ(SelectionStatus(compiler, 9, ui_text_), "To choose: 9, chosen: 0");
  compiler.ticked[1] = true;
  compiler.ticked[100] = true;
  EXPECT_EQ(SelectionStatus(compiler, 9, ui_text_), "To choose: 9, chosen: 2");
}

TEST_F(CompilerStatusTest, NamesTheWrittenFilesWithoutTheirFolders) {
  CompileOutcome outcome;
  outcome.written = {"/flash/FW0417AB.MHX", "/elsewhere/MP0417AA.MSX"};
  EXPECT_EQ(WrittenStatus(outcome, ui_text_), "Files: FW0417AB.MHX, MP0417AA.MSX");
}

TEST_F(CompilerStatusTest, NamesTheLanguagesThatEndEarlyBehindTheFiles) {
  CompileOutcome outcome;
  outcome.written = {"/flash/FW0417AB.MHX"};
  outcome.short_languages = {{2, "ENGLISH"}, {7, "ČEŠTINA"}};
  EXPECT_EQ(WrittenStatus(outcome, ui_text_), "Files: FW0417AB.MHX\nShort: ENGLISH, ČEŠTINA");
}

TEST_F(CompilerStatusTest, CountsTheDamagedRecordsBehindTheFiles) {
  CompileOutcome outcome;
  outcome.written = {"/flash/FW0417AB.MHX"};
  outcome.damaged_records = {{4, "the checksum is wrong"}, {17, "no record"}};
  EXPECT_EQ(WrittenStatus(outcome, ui_text_), "Files: FW0417AB.MHX\n2 damaged, first 4");
}

TEST_F(CompilerStatusTest, SaysNothingOfARunThatWroteNothing) {
  EXPECT_EQ(WrittenStatus(CompileOutcome(), ui_text_), "");
}

}  // namespace
}  // namespace vendlingua
