#include "desktop/main_window/edit_keeper.h"

#include <utility>

#include "core/platform/errors.h"

namespace vendlingua {
namespace {

// Milliseconds: edits come one by one, and each write waits for the disk.
constexpr int kJournalPause = 500;

}  // namespace

EditKeeper::EditKeeper(Engine& engine, std::function<void()> mirror)
    : engine_(engine), mirror_(std::move(mirror)) {
  pause_.setSingleShot(true);
  pause_.setInterval(kJournalPause);
  connect(&pause_, &QTimer::timeout, this, &EditKeeper::Keep);
}

void EditKeeper::Follow() {
  if (!pause_.isActive() && engine_.unsaved_edits.IsBehind()) {
    pause_.start();
  }
}

void EditKeeper::Keep() {
  try {
    engine_.unsaved_edits.Keep();
    told_of_loss_ = false;
  } catch (const FileError& error) {
    if (!std::exchange(told_of_loss_, true)) {
      const UiText& ui_text = engine_.workspace.ui_text;
      engine_.workspace.window.status = ui_text[UiTextId::kEditsNotKept] + " " + error.In(ui_text);
      mirror_();
    }
  }
}

}  // namespace vendlingua
