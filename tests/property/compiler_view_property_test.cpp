#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <set>

#include "core/presentation/compiler_view.h"
#include "random_files.h"

namespace vendlingua {
namespace {

using test::AnyOf;

// A ".MES" set with all languages and `slots` language slots.
MessageSet SetOf(std::size_t slots) {
  MessageSet set;
  set.CurrentFileType = kMesType;
  set.LangCount = static_cast<std::uint8_t>(slots);
  set.language_names.resize(kLanguageEntries, "X");
  return set;
}

RC_GTEST_PROP(CompilerViewProperty, CompilesExactlyWithAsManyLanguagesAsSlots, ()) {
  const std::size_t slots = AnyOf(1, 31);
  const MessageSet set = SetOf(slots);
  CompilerState state;
  std::set<int> ticked;
  const auto clicks = *rc::gen::container<std::vector<std::pair<int, bool>>>(rc::gen::pair(
      rc::gen::inRange(1, 101), rc::gen::weightedElement<bool>({{3, true}, {1, false}})));
  for (const auto& [language, tick] : clicks) {
    state.ticked.at(static_cast<std::size_t>(language)) = tick;
    if (tick) {
      ticked.insert(language);
    } else {
      ticked.erase(language);
    }
    const bool complete = ticked.size() == slots;
    const CompilerView view = CompilerViewOf(set, state);
    RC_ASSERT(view.Command1Enabled == complete);
    RC_ASSERT(state.TickedLanguages() == std::vector<int>(ticked.begin(), ticked.end()));
    for (int i = 1; i <= 100; ++i) {
      const auto& entry = view.Check1.at(static_cast<std::size_t>(i));
      RC_ASSERT(entry.enabled == (!complete || ticked.contains(i)));
    }
  }
}

RC_GTEST_PROP(CompilerViewProperty, NoFurtherLanguageCanBeTickedThanThereAreSlots, ()) {
  const std::size_t slots = AnyOf(1, 9);
  const MessageSet set = SetOf(slots);
  CompilerState state;
  const auto clicks =
      *rc::gen::container<std::vector<std::size_t>>(rc::gen::inRange<std::size_t>(1, 21));
  for (const std::size_t language : clicks) {
    if (CompilerViewOf(set, state).Check1.at(language).enabled) {
      state.ticked.at(language) = !state.ticked.at(language);
    }
    RC_ASSERT(state.TickedLanguages().size() <= slots);
  }
}

}  // namespace
}  // namespace vendlingua
