#include <gmock/gmock.h>

#include "core/flash/flash_compiler.h"
#include "unit/flash/flash_compiler_test.h"

namespace vendlingua {
namespace {

using test::HexOf;
using test::Lines;
using test::Slurp;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

// A file may end before the last message of its last language.
class ShortLanguageTest : public test::FlashCompilerTest {};

// A message was appended while another language was open, and the language was not saved since.
TEST_F(ShortLanguageTest, Writes0ForTheMessagesThatALanguageLacks) {
  file_ = {.flags = "01", .stride = 4, .names = {"Default", "ITALIANO", "ENGLISH"}};
  Open("SET.MES", file_.Bytes().substr(0, 24 + 2 * file_.BlockLength() + 20 + 12));
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  engine_.editing.AddMessage(dialogs_);
  engine_.writer.Save();
  const CompileOutcome outcome = Compile({1, 2}, folder_ / "F.hex");
  EXPECT_TRUE(outcome.completed);
  ASSERT_THAT(outcome.short_languages, SizeIs(1));
  EXPECT_EQ(outcome.short_languages[0].number, 2);
  EXPECT_EQ(outcome.short_languages[0].name, "ENGLISH");
  EXPECT_THAT(Lines(Slurp(folder_ / "F.hex")).at(1),
              StartsWith("S1136010" + HexOf("200021112222") + "00000000"));

  engine_.languages.ChooseDestination(2);
  engine_.writer.Save();
  EXPECT_THAT(Compile({1, 2}, folder_ / "F.hex").short_languages, IsEmpty());
  EXPECT_THAT(Lines(Slurp(folder_ / "F.hex")).at(1),
              StartsWith("S1136010" + HexOf("200021112222    ")));
}

TEST_F(ShortLanguageTest, TakesWhatIsThereOfAMessageThatIsCut) {
  OpenHexFile();
  const std::string bytes = file_.Bytes();
  constexpr std::size_t kLanguage2 = 24 + 2 * 36 + 20;
  for (std::size_t there = 0; there <= 12; ++there) {
    Open("SET.MES", bytes.substr(0, kLanguage2 + there));
    const CompileOutcome outcome = Compile({1, 2}, folder_ / "F.hex");
    EXPECT_THAT(outcome.short_languages, SizeIs(there < 12 ? 1 : 0)) << there;
    const std::string second = bytes.substr(kLanguage2, there) + std::string(12 - there, '\0');
    const auto lines = Lines(Slurp(folder_ / "F.hex"));
    EXPECT_EQ(lines.at(0).substr(8, 32), HexOf("100011111222" + second.substr(0, 4))) << there;
    EXPECT_EQ(lines.at(1).substr(8, 16), HexOf(second.substr(4))) << there;
  }
}

}  // namespace
}  // namespace vendlingua
