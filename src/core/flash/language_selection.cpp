#include "core/flash/language_selection.h"

namespace vendlingua {

std::vector<int> CompilerState::TickedLanguages() const {
  std::vector<int> languages;
  for (std::size_t i = 1; i < Check1.size(); ++i) {
    if (Check1[i].ticked) {
      languages.push_back(static_cast<int>(i));
    }
  }
  return languages;
}

void LoadEntries(const Workspace& workspace, CompilerState& compiler) {
  compiler.Check1.fill(CompilerState::Entry());
  compiler.Command1Enabled = workspace.set.IsMsx();
  if (!workspace.set.IsMes()) {
    return;
  }
  for (std::size_t i = 1; i < compiler.Check1.size(); ++i) {
    const MenuEntry& destination = workspace.menus.mnuDes[i];
    if (destination.visible) {
      compiler.Check1[i].caption = destination.caption;
      compiler.Check1[i].visible = true;
    }
  }
}

void TickEntry(CompilerState& compiler, int language, bool ticked, int lang_count) {
  compiler.Check1.at(static_cast<std::size_t>(language)).ticked = ticked;
  const bool complete = compiler.TickedLanguages().size() == static_cast<std::size_t>(lang_count);
  compiler.Command1Enabled = complete;
  for (CompilerState::Entry& entry : compiler.Check1) {
    entry.enabled = entry.ticked || !complete;
  }
}

}  // namespace vendlingua
