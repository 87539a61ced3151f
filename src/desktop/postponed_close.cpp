#include "desktop/postponed_close.h"

#include <QMetaObject>
#include <QScopeGuard>

namespace vendlingua {

void PostponedClose::During(const std::function<void()>& command) {
  ++running_;
  const auto end = qScopeGuard([this] { CommandEnds(); });
  command();
}

bool PostponedClose::Postpones(QCloseEvent& event) {
  if (running_ == 0) {
    return false;
  }
  wanted_ = true;
  event.ignore();
  return true;
}

// Whoever called the command is a part of the window, so even now it cannot go at once.
void PostponedClose::CommandEnds() {
  --running_;
  if (running_ == 0 && wanted_) {
    wanted_ = false;
    QMetaObject::invokeMethod(&window_, "close", Qt::QueuedConnection);
  }
}

}  // namespace vendlingua
