#include "core/operations/message_file_change.h"

#include <fmt/format.h>

#include <string>
#include <utility>

#include "core/operations/outside_changes.h"
#include "core/platform/errors.h"
#include "core/platform/in_place_change.h"
#include "core/platform/locked_file.h"

namespace vendlingua {
namespace {

std::string QuestionAbout(const EditConflict& conflict, const UiText& texts) {
  const UiSentence question =
      conflict.message
          ? UiSentence(UiTextId::kMessageChangedTwice, *conflict.message, conflict.language_name)
          : UiSentence(UiTextId::kNameChangedTwice, conflict.language, conflict.language_name);
  return question.In(texts);
}

[[noreturn]] void RefuseConflicts(const MessageSet& set,
                                  const std::vector<EditConflict>& conflicts) {
  std::vector<std::string> places;
  places.reserve(conflicts.size());
  for (const EditConflict& conflict : conflicts) {
    places.push_back(conflict.message ? fmt::to_string(*conflict.message) : conflict.language_name);
  }
  throw FileChangedError(set.CurrentFileName, UiTextId::kChangedTwice,
                         fmt::format("{}", fmt::join(places, ", ")));
}

void Decide(const Workspace& workspace, Dialogs& dialogs, std::vector<EditConflict> conflicts,
            std::vector<DecidedConflict>& decided) {
  const UiText& texts = workspace.ui_text;
  ConflictRequest request;
  request.title = texts[UiTextId::kConflictTitle];
  request.keep_mine = texts[UiTextId::kKeepMine];
  request.take_theirs = texts[UiTextId::kTakeTheirs];
  request.display = workspace.set.DisplayType;
  for (const EditConflict& conflict : conflicts) {
    request.questions.push_back(QuestionAbout(conflict, texts));
  }
  request.conflicts = std::move(conflicts);
  const std::vector<ConflictAnswer> answers = dialogs.ResolveConflicts(request);
  if (answers.size() != request.conflicts.size()) {
    RefuseConflicts(workspace.set, request.conflicts);
  }
  for (std::size_t i = 0; i < answers.size(); ++i) {
    decided.push_back({request.conflicts[i], answers[i]});
  }
}

// A network folder without locks, or one that takes no new file, cannot keep what is promised
// elsewhere; said once, it does not get in the way.
void TellWhatIsMissing(Workspace& workspace, Dialogs& dialogs, bool is_locked,
                       Protection protection) {
  const bool is_safe = is_locked && protection == Protection::kUndoFile;
  if (is_safe || workspace.told_of_missing_safety) {
    return;
  }
  workspace.told_of_missing_safety = true;
  const UiSentence notice(is_locked ? UiTextId::kNoUndoFile : UiTextId::kNoLocks,
                          PathText(workspace.set.CurrentFileName));
  dialogs.MessageBox({MessageIcon::kInformation, notice.In(workspace.ui_text), ""});
}

// What is left to be decided before anything is written.
std::vector<EditConflict> TryToChange(Workspace& workspace, Dialogs& dialogs,
                                      const std::vector<DecidedConflict>& decided,
                                      const PatchBuilder& build) {
  MessageSet& set = workspace.set;
  Protection protection = Protection::kUndoFile;
  bool is_locked = false;
  {
    LockedFile file(set.CurrentFileName, LockedFile::Access::kChange);
    const std::string content = file.Read();
    std::vector<EditConflict> conflicts = TakeOverIntoView(workspace, content, decided);
    if (!conflicts.empty()) {
      return conflicts;
    }
    std::string changed = Patched(content, build(content));
    protection = ChangeInPlace(file, content, changed);
    is_locked = file.is_locked();
    set.file_content = std::move(changed);
  }
  TellWhatIsMissing(workspace, dialogs, is_locked, protection);
  return {};
}

}  // namespace

void ChangeMessageFile(Workspace& workspace, Dialogs& dialogs, const PatchBuilder& build) {
  std::vector<DecidedConflict> decided;
  for (;;) {
    std::vector<EditConflict> conflicts = TryToChange(workspace, dialogs, decided, build);
    if (conflicts.empty()) {
      return;
    }
    Decide(workspace, dialogs, std::move(conflicts), decided);
  }
}

}  // namespace vendlingua
