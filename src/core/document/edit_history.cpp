#include "core/document/edit_history.h"

#include <utility>

namespace vendlingua {

void EditHistory::Add(const Edit& edit, EditKind kind) {
  const bool types = kind == EditKind::kTyping;
  const bool grows =
      typing_ && types && CanStepBack() && steps_[done_ - 1]->back().message == edit.message;
  if (grows) {
    steps_.resize(done_);
    EditStep grown = *steps_.back();
    grown.back().after = edit.after;
    steps_.back() = std::make_shared<const EditStep>(std::move(grown));
  } else {
    Add({edit});
  }
  typing_ = types;
}

void EditHistory::Add(EditStep step) {
  steps_.resize(done_);
  steps_.push_back(std::make_shared<const EditStep>(std::move(step)));
  done_ = steps_.size();
  EndTyping();
}

EditStep EditHistory::StepBack() {
  EndTyping();
  return CanStepBack() ? *steps_[--done_] : EditStep();
}

EditStep EditHistory::StepForward() {
  EndTyping();
  return CanStepForward() ? *steps_[done_++] : EditStep();
}

}  // namespace vendlingua
