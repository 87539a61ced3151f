#include "core/desk/finding_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "core/checks/rules.h"
#include "core/texts/english_texts.h"

namespace vendlingua {
namespace {

// Those that are seen elsewhere need none: the state of a row tells what waits for its translation,
// and a language that is open has all its messages.
bool IsSeenElsewhere(std::string_view rule) {
  return rule == "blank" || rule == "same-as-origin" || rule == "short-block";
}

TEST(SentenceOf, EveryRuleHasAnother) {
  std::vector<std::string> sentences;
  for (const Rule* rule : AllRules()) {
    if (IsSeenElsewhere(rule->name())) {
      continue;
    }
    Finding finding;
    finding.rule = rule->name();
    const std::string sentence = SentenceOf(finding, EnglishTexts());
    EXPECT_NE(sentence, rule->name());
    EXPECT_NE(sentence, "");
    EXPECT_EQ(std::ranges::count(sentences, sentence), 0) << sentence;
    sentences.push_back(sentence);
  }
}

TEST(FixNameOf, SaysWhatTheRuleWouldDo) {
  Finding finding;
  finding.rule = "placeholder-lost";
  EXPECT_EQ(FixNameOf(finding), UiTextId::kPutPlaceholdersBack);
  finding.rule = "alignment";
  EXPECT_EQ(FixNameOf(finding), UiTextId::kAlignAsOrigin);
}

// Their fix can only be the text that the message had before.
TEST(FixNameOf, IsToRestoreWhereTheRuleHasNoFix) {
  Finding finding;
  finding.rule = "number-missing";
  EXPECT_EQ(FixNameOf(finding), UiTextId::kRestoreText);
}

}  // namespace
}  // namespace vendlingua
