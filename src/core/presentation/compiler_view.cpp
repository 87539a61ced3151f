#include "core/presentation/compiler_view.h"

namespace vendlingua {

CompilerView CompilerViewOf(const MessageSet& set, const CompilerState& state) {
  const bool complete = state.TickedLanguages().size() == set.LangCount;
  CompilerView view;
  view.Command1Enabled = !state.busy && (set.IsMsx() || (set.IsMes() && complete));
  view.Command2Enabled = !state.busy;
  for (std::size_t i = 1; set.IsMes() && i < set.language_names.size(); ++i) {
    CompilerView::Entry& entry = view.Check1.at(i);
    entry.caption = set.language_names[i];
    entry.visible = true;
    entry.ticked = state.ticked.at(i);
    entry.enabled = entry.ticked || !complete;
  }
  return view;
}

}  // namespace vendlingua
