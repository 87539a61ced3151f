#include "core/desk/live_findings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/engine_test.h"
#include "support/message_files.h"

namespace vendlingua::test {
namespace {

// Message 1 holds a number, "7", in message 2 the board fills the second cell.
class LiveFindingsTest : public EngineTest {
 protected:
  LiveFindingsTest() {
    MesFile mes;
    mes.names = {"Default", "ITALIANO", "ENGLISH"};
    content_ = mes.Bytes();
    for (const std::size_t language : {0U, 1U, 2U}) {
      const std::string text = mes.Message(language, 2);
      content_.replace(content_.find(text), text.size(),
                       text.substr(0, 1) + "\xFE" + text.substr(2));
    }
    content_ = Lettered(content_);
    for (const char* text : {"ABBB", "BBBB", "CBBB"}) {
      content_.replace(content_.find(text) + 1, 2, " 7");
    }
    Open("TEST.MES", content_);
  }

  MessageSet& set() { return engine_.workspace.set; }

  void Edit() {
    engine_.languages.ChooseOrigin(1);
    engine_.languages.ChooseDestination(2);
  }

  std::vector<std::string> RulesOf(std::size_t message) {
    findings_.Follow(set());
    std::vector<std::string> rules;
    for (const Finding& finding : findings_.Of(message)) {
      rules.emplace_back(finding.rule);
    }
    return rules;
  }

  bool Finds(std::size_t message, const char* rule) {
    const auto rules = RulesOf(message);
    return std::ranges::find(rules, rule) != rules.end();
  }

  std::string content_;
  LiveFindings findings_;
};

TEST_F(LiveFindingsTest, FindsNothingBeforeADestinationIsOpen) {
  findings_.Follow(set());
  EXPECT_TRUE(findings_.All().empty());
  EXPECT_FALSE(findings_.NeedsWork(0));
}

TEST_F(LiveFindingsTest, FindsWhatIsEdited) {
  Edit();
  EXPECT_FALSE(Finds(0, "placeholder-stray"));
  set().SetText(0, Codes("A\xFE"));
  EXPECT_TRUE(Finds(0, "placeholder-stray"));
  EXPECT_TRUE(findings_.NeedsWork(0));
  set().Undo();
  EXPECT_FALSE(Finds(0, "placeholder-stray"));
}

TEST_F(LiveFindingsTest, AFindingKnowsItsFix) {
  Edit();
  set().SetText(0, Codes("A\xFE"));
  findings_.Follow(set());
  const auto fix = findings_.Of(0).front().fix;
  ASSERT_TRUE(fix.has_value());
  EXPECT_EQ(*fix, Codes("A   "));
}

TEST_F(LiveFindingsTest, TheTextThatWasOpenedMendsWhatNoRuleCan) {
  Edit();
  EXPECT_FALSE(Finds(1, "number-missing"));
  set().SetText(1, Codes("DDDD"));
  ASSERT_TRUE(Finds(1, "number-missing"));
  const auto fix = findings_.Of(1).front().fix;
  ASSERT_TRUE(fix.has_value());
  EXPECT_EQ(*fix, Codes("C 7B"));
}

TEST_F(LiveFindingsTest, ATextThatWasWrongBeforeMendsNothing) {
  Edit();
  set().opened_texts[1] = TextFrom("EEEE");
  ASSERT_TRUE(set().SetText(1, Codes("DDDD")));
  ASSERT_TRUE(Finds(1, "number-missing"));
  EXPECT_FALSE(findings_.Of(1).front().fix.has_value());
}

TEST_F(LiveFindingsTest, ATextThatIsToDoIsNoFinding) {
  Edit();
  set().SetText(0, {});
  EXPECT_FALSE(Finds(0, "blank"));
  set().SetText(0, Codes("BAAA"));
  EXPECT_FALSE(Finds(0, "same-as-origin"));
}

TEST_F(LiveFindingsTest, LooksAnewWhenAnotherLanguageIsOpened) {
  Edit();
  set().SetText(0, Codes("A\xFE"));
  EXPECT_TRUE(Finds(0, "placeholder-stray"));
  set().Modified = kFalse;
  engine_.languages.ChooseDestination(1);
  EXPECT_FALSE(Finds(0, "placeholder-stray"));
}

TEST_F(LiveFindingsTest, LooksAtAMessageThatIsAdded) {
  Edit();
  findings_.Follow(set());
  set().AppendMessage();
  set().SetText(3, Codes("A\xFE"));
  EXPECT_TRUE(Finds(3, "placeholder-stray"));
}

TEST_F(LiveFindingsTest, ANewLanguageNeedsNoNameYet) {
  engine_.languages.ChooseOrigin(1);
  engine_.languages.StartNewLanguage(2);
  EXPECT_FALSE(Finds(1, "language-name"));
}

}  // namespace
}  // namespace vendlingua::test
