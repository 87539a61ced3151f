#include "core/desk/language_list.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "support/engine_test.h"
#include "support/message_files.h"

namespace vendlingua::test {
namespace {

class LanguageListTest : public EngineTest {
 protected:
  LanguageListTest() {
    MesFile mes;
    mes.names = {"Default", "ITALIANO", "ENGLISH", "SUOMI"};
    content_ = mes.Bytes();
    // Message 1 of the third language says what the first one says.
    const std::string text = mes.Message(3, 1);
    content_.replace(content_.find(text), text.size(), mes.Message(1, 1));
  }

  std::vector<ListedLanguage> Languages() { return ListLanguages(engine_.workspace.set); }

  std::string content_;
};

TEST_F(LanguageListTest, IsEmptyWithoutAFile) { EXPECT_TRUE(Languages().empty()); }

TEST_F(LanguageListTest, NamesTheLanguagesOfTheFile) {
  Open("TEST.MES", content_);
  const auto languages = Languages();
  ASSERT_EQ(languages.size(), 3U);
  EXPECT_EQ(languages[0].number, 1);
  EXPECT_EQ(languages[0].name, "ITALIANO");
  EXPECT_EQ(languages[2].name, "SUOMI");
  EXPECT_EQ(languages[0].progress, std::nullopt);
}

TEST_F(LanguageListTest, TellsHowFarEachIs) {
  Open("TEST.MES", content_);
  engine_.languages.ChooseOrigin(1);
  const auto languages = Languages();
  EXPECT_TRUE(languages[0].is_origin);
  EXPECT_EQ(languages[0].progress, std::nullopt);
  EXPECT_EQ(languages[1].progress, (Progress{.done = 3, .messages = 3}));
  EXPECT_EQ(languages[2].progress, (Progress{.done = 2, .messages = 3}));
}

TEST_F(LanguageListTest, CountsTheDestinationAsItIsEdited) {
  Open("TEST.MES", content_);
  engine_.languages.ChooseOrigin(1);
  engine_.languages.ChooseDestination(2);
  engine_.workspace.set.SetText(0, {});
  const auto languages = Languages();
  EXPECT_TRUE(languages[1].is_destination);
  EXPECT_EQ(languages[1].progress, (Progress{.done = 2, .messages = 3}));
}

TEST_F(LanguageListTest, CountsWhatIsThereOfALanguageThatTheFileCuts) {
  Open("TEST.MES", content_.substr(0, content_.size() - 5));
  engine_.languages.ChooseOrigin(1);
  EXPECT_EQ(Languages()[2].progress, (Progress{.done = 2, .messages = 3}));
}

TEST_F(LanguageListTest, HasNoProgressWhereTheFileIsGone) {
  Open("TEST.MES", content_);
  engine_.languages.ChooseOrigin(1);
  std::filesystem::remove(folder_ / "TEST.MES");
  EXPECT_EQ(Languages()[2].progress, std::nullopt);
}

}  // namespace
}  // namespace vendlingua::test
