#include "core/document/edit_history.h"

namespace vendlingua {

void EditHistory::Add(const Edit& edit, EditKind kind) {
  edits_.resize(done_, edit);
  const bool grows = typing_ && kind == EditKind::kTyping && !edits_.empty() &&
                     edits_.back().message == edit.message;
  if (grows) {
    edits_.back().after = edit.after;
  } else {
    edits_.push_back(edit);
  }
  done_ = edits_.size();
  typing_ = kind == EditKind::kTyping;
}

std::optional<Edit> EditHistory::StepBack() {
  EndTyping();
  if (!CanStepBack()) {
    return std::nullopt;
  }
  return edits_[--done_];
}

std::optional<Edit> EditHistory::StepForward() {
  EndTyping();
  if (!CanStepForward()) {
    return std::nullopt;
  }
  return edits_[done_++];
}

}  // namespace vendlingua
