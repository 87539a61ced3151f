#include "core/checks/rules.h"

#include <algorithm>
#include <iterator>

#include "core/checks/rules/alignment.h"
#include "core/checks/rules/glyph_rules.h"
#include "core/checks/rules/inconsistent.h"
#include "core/checks/rules/language_rules.h"
#include "core/checks/rules/number_missing.h"
#include "core/checks/rules/placeholder_rules.h"
#include "core/checks/rules/untranslated_rules.h"

namespace vendlingua {

namespace {

template <typename Kind>
const Rule* TheOnly() {
  static const Kind kRule;
  return &kRule;
}

}  // namespace

const Rules& AllRules() {
  static const Rules kRules = {
      TheOnly<PlaceholderLost>(), TheOnly<PlaceholderStray>(), TheOnly<PlaceholderOvertyped>(),
      TheOnly<Blank>(),           TheOnly<SameAsOrigin>(),     TheOnly<NumberMissing>(),
      TheOnly<GlyphMissing>(),    TheOnly<GlyphDiffers>(),     TheOnly<Inconsistent>(),
      TheOnly<Alignment>(),       TheOnly<NameOfLanguage>(),   TheOnly<ShortBlock>()};
  return kRules;
}

Rules ChosenRules(const std::vector<std::string>& only, const std::vector<std::string>& ignored) {
  const auto names = [](const std::vector<std::string>& list, const Rule* rule) {
    return std::find(list.begin(), list.end(), rule->name()) != list.end();
  };
  Rules chosen;
  std::copy_if(AllRules().begin(), AllRules().end(), std::back_inserter(chosen),
               [&](const Rule* rule) {
                 return (only.empty() || names(only, rule)) && !names(ignored, rule);
               });
  return chosen;
}

}  // namespace vendlingua
