#include "core/operations/outside_changes.h"

#include "core/platform/errors.h"
#include "core/platform/in_place_change.h"

namespace vendlingua {

std::vector<EditConflict> TakeOverIntoView(Workspace& workspace, const std::string& content,
                                           const std::vector<DecidedConflict>& decided) {
  MessageSet& set = workspace.set;
  const DisplayText shown = set.DestText.at(set.current_message);
  std::vector<EditConflict> conflicts = TakeOverChanges(set, content, decided);
  if (set.DestText.at(set.current_message) != shown) {
    workspace.window.typed.reset();
  }
  return conflicts;
}

OutsideChange NoticeOutsideChange(Workspace& workspace) {
  const MessageSet& set = workspace.set;
  if (!set.IsMes() && !set.IsMsx()) {
    return OutsideChange::kNone;
  }
  std::string& status = workspace.window.status;
  try {
    const std::string content = ReadSharedFile(set.CurrentFileName);
    if (content == set.file_content) {
      return OutsideChange::kNone;
    }
    const bool taken = TakeOverIntoView(workspace, content, {}).empty();
    status =
        workspace
            .ui_text[taken ? UiTextId::kOutsideChangesTaken : UiTextId::kOutsideChangesUndecided];
    return taken ? OutsideChange::kTakenOver : OutsideChange::kUndecided;
  } catch (const FileError& error) {
    status = error.In(workspace.ui_text);
    return OutsideChange::kUnusable;
  }
}

}  // namespace vendlingua
