#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <set>

#include "core/flash/language_selection.h"
#include "random_files.h"

namespace vendlingua {
namespace {

using test::AnyOf;

RC_GTEST_PROP(LanguageSelectionProperty, CompilesExactlyWithAsManyLanguagesAsSlots, ()) {
  const auto slots = static_cast<int>(AnyOf(1, 31));
  CompilerState compiler;
  std::set<int> ticked;
  const auto clicks = *rc::gen::container<std::vector<std::pair<int, bool>>>(rc::gen::pair(
      rc::gen::inRange(1, 101), rc::gen::weightedElement<bool>({{3, true}, {1, false}})));
  for (const auto& [language, tick] : clicks) {
    TickEntry(compiler, language, tick, slots);
    if (tick) {
      ticked.insert(language);
    } else {
      ticked.erase(language);
    }
    const bool complete = static_cast<int>(ticked.size()) == slots;
    RC_ASSERT(compiler.Command1Enabled == complete);
    RC_ASSERT(compiler.TickedLanguages() == std::vector<int>(ticked.begin(), ticked.end()));
    for (int i = 1; i <= 100; ++i) {
      const auto& entry = compiler.Check1.at(static_cast<std::size_t>(i));
      RC_ASSERT(entry.enabled == (!complete || ticked.contains(i)));
    }
  }
}

RC_GTEST_PROP(LanguageSelectionProperty, NoFurtherLanguageCanBeTickedThanThereAreSlots, ()) {
  const auto slots = AnyOf(1, 9);
  CompilerState compiler;
  const auto clicks =
      *rc::gen::container<std::vector<std::size_t>>(rc::gen::inRange<std::size_t>(1, 21));
  for (const std::size_t language : clicks) {
    const auto& entry = compiler.Check1.at(language);
    if (entry.enabled) {
      TickEntry(compiler, static_cast<int>(language), !entry.ticked, static_cast<int>(slots));
    }
    RC_ASSERT(compiler.TickedLanguages().size() <= slots);
  }
}

}  // namespace
}  // namespace vendlingua
