#include <gmock/gmock.h>

#include "core/operations/languages.h"
#include "support/engine_test.h"

namespace vendlingua {
namespace {

using test::MesFile;
using testing::SizeIs;

class NamedLanguageTest : public test::EngineTest {
 protected:
  NamedLanguageTest() { Open("FILE.MES", file_.Bytes()); }

  MesFile file_{.names = {"Default", "ITALIANO", "ENGLISH"}};
};

TEST_F(NamedLanguageTest, NamesANewLanguageBeforeItBegins) {
  engine_.languages.ChooseOrigin(1);
  dialogs_.input_answers = {"suomi"};
  EXPECT_EQ(engine_.languages.StartNamedLanguage(), DestinationOutcome::kOpened);
  EXPECT_EQ(set_.phase, Phase::kDestinationUnnamed);
  EXPECT_EQ(Destination(0), "    ");
  engine_.writer.Save();
  EXPECT_THAT(dialogs_.inputs, SizeIs(1));
  EXPECT_EQ(set_.language_names.back(), "SUOMI");
  EXPECT_EQ(set_.phase, Phase::kDestinationOpen);
}

TEST_F(NamedLanguageTest, BeginsNoNewLanguageWithoutAName) {
  engine_.languages.ChooseOrigin(1);
  dialogs_.input_answers = {""};
  EXPECT_EQ(engine_.languages.StartNamedLanguage(), DestinationOutcome::kNothingChosen);
  EXPECT_EQ(set_.phase, Phase::kOriginChosen);
}

TEST_F(NamedLanguageTest, AsksForAnotherNameThanATakenOne) {
  engine_.languages.ChooseOrigin(1);
  dialogs_.input_answers = {"english", "suomi"};
  EXPECT_EQ(engine_.languages.StartNamedLanguage(), DestinationOutcome::kOpened);
  EXPECT_EQ(set_.new_language_name->Caption(), "SUOMI");
}

TEST_F(NamedLanguageTest, AsksForANameAgainWhenANamedLanguageCouldNotBeSaved) {
  engine_.languages.ChooseOrigin(1);
  dialogs_.input_answers = {"suomi"};
  engine_.languages.StartNamedLanguage();
  MesFile others = file_;
  others.names.emplace_back("SUOMI");
  folder_.Write("FILE.MES", others.Bytes());
  EXPECT_EQ(engine_.writer.Save().result, SaveOutcome::kFailed);
  dialogs_.input_answers = {"eesti"};
  EXPECT_EQ(engine_.writer.Save().result, SaveOutcome::kSaved);
  EXPECT_EQ(set_.language_names.back(), "EESTI");
}

TEST_F(NamedLanguageTest, ForgetsTheNameOfANewLanguageThatIsLeft) {
  engine_.languages.ChooseOrigin(1);
  dialogs_.input_answers = {"suomi", "eesti"};
  engine_.languages.StartNamedLanguage();
  dialogs_.yes_no_answers = {MessageAnswer::kNo};
  engine_.languages.StartNewLanguage(0);
  engine_.writer.Save();
  EXPECT_EQ(set_.language_names.back(), "EESTI");
}

TEST_F(NamedLanguageTest, AFileWithoutLanguagesTakesANamedOne) {
  MesFile bare;
  bare.names = {"Default"};
  Open("BARE.MES", bare.Bytes());
  engine_.languages.ChooseOrigin(0);
  ASSERT_TRUE(menus().mnuNewLanguage.enabled);
  dialogs_.input_answers = {"suomi"};
  engine_.languages.StartNamedLanguage();
  engine_.writer.Save();
  EXPECT_EQ(menus().mnuDes[1].caption, "SUOMI");
}

}  // namespace
}  // namespace vendlingua
