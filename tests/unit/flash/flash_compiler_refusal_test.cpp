#include <gmock/gmock.h>

#include "core/flash/flash_compiler.h"
#include "unit/flash/flash_compiler_test.h"

namespace vendlingua {
namespace {

using test::HexOf;
using test::Lines;
using test::Slurp;
using testing::HasSubstr;
using testing::StartsWith;

class RefusedCompilationTest : public test::FlashCompilerTest {};

TEST_F(RefusedCompilationTest, RefusesMoreLanguagesThanSlotsWithNothingWritten) {
  OpenHexFile();
  EXPECT_THAT(ReasonOfRefusal({1, 2, 3}, folder_ / "F.hex"),
              testing::AllOf(HasSubstr("SET.MES"), HasSubstr("24")));
  EXPECT_EQ(folder_.Names(), "SET.MES");
  ExpectReady();
}

TEST_F(RefusedCompilationTest, LeavesTheImageAsItWasWhenItRefuses) {
  OpenMes();
  Compile({1, 2}, folder_ / "F.hex");
  const auto image = engine_.flash_image.Bytes();
  const std::string before = test::Text(image);
  EXPECT_THAT(ReasonOfRefusal({3, 9}, folder_ / "F.hex"), HasSubstr("language 9"));
  EXPECT_EQ(test::Text(engine_.flash_image.Bytes()), before);
}

TEST_F(RefusedCompilationTest, RefusesToListMoreThanTwentyLanguages) {
  file_ = {.lang_count = 21, .last_msg = 21, .stride = 22};
  OpenMes();
  EXPECT_THAT(ReasonOfRefusal({1}, folder_ / "F.hex"),
              testing::AllOf(HasSubstr("SET.MES"), HasSubstr("20"), HasSubstr("21")));
  EXPECT_EQ(folder_.Names(), "SET.MES");
}

TEST_F(RefusedCompilationTest, TakesMoreThanTwentySlotsWhenTheFirmwareListsItsLanguages) {
  file_ = {.lang_count = 21, .last_msg = 21, .flags = "01", .stride = 22};
  OpenMes();
  EXPECT_TRUE(Compile({1}, folder_ / "F.hex").completed);
}

TEST_F(RefusedCompilationTest, FailsReadyAgainWhenTheMessageFileIsGone) {
  OpenHexFile();
  std::filesystem::remove(folder_ / "SET.MES");
  EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / "F.hex"), HasSubstr("SET.MES"));
  EXPECT_EQ(folder_.Names(), "");
  ExpectReady();
}

TEST_F(RefusedCompilationTest, RefusesAMessageFileThatIsCutAnywhere) {
  OpenHexFile();
  const std::string bytes = file_.Bytes();
  constexpr std::size_t kEndOfLanguage2 = 24 + 2 * 36 + 20 + 12;
  for (std::size_t length = 0; length < kEndOfLanguage2; ++length) {
    folder_.Write("SET.MES", bytes.substr(0, length));
    EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / "F.hex"), HasSubstr("SET.MES")) << length;
    EXPECT_EQ(folder_.Names(), "SET.MES");
  }
}

// A message was appended while another language was open.
TEST_F(RefusedCompilationTest, CompilesALanguageThatLacksAMessageOnceItWasSaved) {
  file_ = {.flags = "01", .stride = 4, .names = {"Default", "ITALIANO", "ENGLISH"}};
  Open("SET.MES", file_.Bytes().substr(0, 24 + 2 * file_.BlockLength() + 20 + 12));
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  engine_.view.AddMessage(dialogs_);
  engine_.writer.Save();
  EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / "F.hex"), HasSubstr("message 3 of language 2"));
  engine_.languages.ChooseDestination(2);
  engine_.writer.Save();
  EXPECT_TRUE(Compile({1, 2}, folder_ / "F.hex").completed);
  EXPECT_THAT(Lines(Slurp(folder_ / "F.hex")).at(1),
              StartsWith("S1136010" + HexOf("200021112222    ")));
}

TEST_F(RefusedCompilationTest, FailsReadyAgainWhenTheFlashFileCannotBeWritten) {
  OpenHexFile();
  EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / "missing/F.hex"), HasSubstr("F.hex"));
  ExpectReady();
}

TEST_F(RefusedCompilationTest, RefusesToOverwriteTheMessageFile) {
  OpenHexFile();
  EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / "SET.MES"), HasSubstr("SET.MES"));
  EXPECT_EQ(Slurp(folder_ / "SET.MES"), file_.Bytes());
  ExpectReady();
}

TEST_F(RefusedCompilationTest, RefusesToWriteTheNamedCopyOverTheMessageFile) {
  OpenMhxFile();
  std::filesystem::create_symlink("SET.MES", folder_ / "FW0417AB.MSX");
  EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / "FW0417AB.MHX"), HasSubstr("FW0417AB.MSX"));
  EXPECT_EQ(Slurp(folder_ / "SET.MES"), file_.Bytes());
  ExpectReady();
}

TEST_F(RefusedCompilationTest, LeavesTheMessageFileAsItWas) {
  OpenMhxFile();
  Compile({1, 2}, folder_ / "FW0417AB.MHX");
  EXPECT_EQ(Slurp(folder_ / "SET.MES"), file_.Bytes());
}

}  // namespace
}  // namespace vendlingua
