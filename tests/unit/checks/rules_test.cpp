#include "core/checks/rules.h"

#include <gmock/gmock.h>

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> NamesOf(const Rules& rules) {
  std::vector<std::string> names;
  for (const Rule* rule : rules) {
    names.emplace_back(rule->name());
  }
  return names;
}

TEST(RulesTest, GoByTheNamesThatScriptsRelyOn) {
  EXPECT_THAT(NamesOf(AllRules()),
              ElementsAre("placeholder-lost", "placeholder-stray", "placeholder-overtyped", "blank",
                          "same-as-origin", "number-missing", "glyph-missing", "glyph-differs",
                          "inconsistent", "alignment", "language-name", "short-block"));
}

TEST(RulesTest, AreChosenByTheirNames) {
  EXPECT_EQ(ChosenRules({}, {}), AllRules());
  EXPECT_THAT(NamesOf(ChosenRules({"short-block", "blank"}, {})),
              ElementsAre("blank", "short-block"));
  EXPECT_EQ(ChosenRules({}, {"blank"}).size(), AllRules().size() - 1);
  EXPECT_THAT(ChosenRules({"blank"}, {"blank"}), IsEmpty());
}

}  // namespace
}  // namespace vendlingua
