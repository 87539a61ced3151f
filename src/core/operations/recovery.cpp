#include "core/operations/recovery.h"

#include "core/platform/errors.h"
#include "core/platform/in_place_change.h"
#include "core/platform/locked_file.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using Access = LockedFile::Access;
using State = PendingChange::State;

FileError DoesNotFit(const PendingChange& pending, const fs::path& file) {
  return pending.state == State::kForeign
             ? FileError(pending.undo_file, UiTextId::kIsInTheWay)
             : FileError(pending.undo_file, UiTextId::kUndoDoesNotFit, PathText(file));
}

// What was interrupted, if anything was. What is over needs no undo file any more.
PendingChange LookBeside(const fs::path& file) {
  LockedFile locked(file, Access::kRead);
  PendingChange pending = PendingChangeOf(file, locked.Read());
  if (pending.state == State::kOver) {
    Forget(pending);
  }
  return pending;
}

void KeepAsItIs(const fs::path& file) {
  LockedFile locked(file, Access::kRead);
  Forget(PendingChangeOf(file, locked.Read()));
}

}  // namespace

void OfferRecovery(const UiText& ui_text, Dialogs& dialogs, const fs::path& file) {
  if (!HasUndoFile(file)) {
    return;
  }
  const PendingChange pending = LookBeside(file);
  if (pending.state == State::kUnknown) {
    dialogs.MessageBox({MessageIcon::kExclamation, DoesNotFit(pending, file).In(ui_text),
                        ui_text[UiTextId::kRecoverTitle]});
    return;
  }
  if (pending.state != State::kInterrupted) {
    return;
  }
  const UiSentence question(UiTextId::kRecoverQuestion, PathText(file));
  const MessageAnswer answer =
      dialogs.MessageBox({MessageIcon::kQuestion, question.In(ui_text),
                          ui_text[UiTextId::kRecoverTitle], MessageButtons::kYesNo});
  if (answer == MessageAnswer::kYes) {
    Recover(file);
  } else {
    KeepAsItIs(file);
  }
}

bool Recover(const fs::path& file) {
  LockedFile locked(file, Access::kChange);
  const PendingChange pending = PendingChangeOf(file, locked.Read());
  switch (pending.state) {
    case State::kNone:
      return false;
    case State::kOver:
      Forget(pending);
      return false;
    case State::kInterrupted:
      TakeBack(locked, pending);
      return true;
    case State::kUnknown:
    case State::kForeign:
      break;
  }
  throw DoesNotFit(pending, file);
}

}  // namespace vendlingua
