#include "core/desk/language_findings.h"

#include <gtest/gtest.h>

#include <string>

#include "support/engine_test.h"

namespace vendlingua {
namespace {

// In the file one message of ENGLISH has a placeholder that the board does not fill.
class LanguageFindingsTest : public test::EngineTest {
 protected:
  LanguageFindingsTest() {
    test::MesFile file{.names = {"Default", "ITALIANO", "ENGLISH", "SUOMI"}};
    std::string content = test::Lettered(file.Bytes());
    content.replace(content.rfind("CBBB"), 4, "CB\xFE ");
    Open("A.MES", content);
  }

  LanguageFindings findings_;
};

TEST_F(LanguageFindingsTest, AreNoneBeforeAnOriginIsChosen) {
  findings_.Follow(set_);
  EXPECT_EQ(findings_.Of(2), std::nullopt);
}

TEST_F(LanguageFindingsTest, AreCountedByLanguage) {
  engine_.languages.ChooseOrigin(1);
  findings_.Follow(set_);
  EXPECT_EQ(findings_.Of(1), std::nullopt);
  const std::size_t english = findings_.Of(2).value_or(0);
  const std::size_t suomi = findings_.Of(3).value_or(0);
  EXPECT_EQ(english, suomi + 1);
  EXPECT_EQ(findings_.Of(4), std::nullopt);
}

TEST_F(LanguageFindingsTest, FollowTheFile) {
  engine_.languages.ChooseOrigin(1);
  findings_.Follow(set_);
  const auto before = findings_.Of(2);
  engine_.languages.ChooseDestination(2);
  set_.SetText(1, test::Codes("CBBB"));
  findings_.Follow(set_);
  EXPECT_EQ(findings_.Of(2), before);
  engine_.writer.Save();
  findings_.Follow(set_);
  EXPECT_EQ(findings_.Of(2), *before - 1);
}

}  // namespace
}  // namespace vendlingua
