#include <gmock/gmock.h>

#include "core/flash/flash_compiler.h"
#include "unit/flash/flash_compiler_test.h"

namespace vendlingua {
namespace {

using test::Slurp;
using testing::HasSubstr;

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

TEST_F(RefusedCompilationTest, RefusesAMessageFileThatLostALanguageSinceItWasOpened) {
  OpenHexFile();
  const std::string bytes = file_.Bytes();
  constexpr std::size_t kMessagesOfLanguage2 = 24 + 2 * 36 + 20;
  for (std::size_t length = 0; length < kMessagesOfLanguage2; ++length) {
    folder_.Write("SET.MES", bytes.substr(0, length));
    EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / "F.hex"), HasSubstr("SET.MES")) << length;
    EXPECT_EQ(folder_.Names(), "SET.MES");
  }
}

TEST_F(RefusedCompilationTest, FailsReadyAgainWhenTheFlashFileCannotBeWritten) {
  OpenHexFile();
  EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / "missing/F.hex"), HasSubstr("F.hex"));
  ExpectReady();
}

TEST_F(RefusedCompilationTest, LeavesTheMessageFileAsItWas) {
  OpenMhxFile();
  Compile({1, 2}, folder_ / "FW0417AB.MHX");
  EXPECT_EQ(Slurp(folder_ / "SET.MES"), file_.Bytes());
}

}  // namespace
}  // namespace vendlingua
