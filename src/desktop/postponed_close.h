#ifndef VENDLINGUA_DESKTOP_POSTPONED_CLOSE_H_
#define VENDLINGUA_DESKTOP_POSTPONED_CLOSE_H_

#include <QCloseEvent>
#include <QWidget>
#include <functional>

namespace vendlingua {

/// Keeps a window while a command runs in it: the command still works with the window when its
/// dialogs come back, so closing waits for its end.
class PostponedClose {
 public:
  explicit PostponedClose(QWidget& window) : window_(window) {}

  /// Runs `command`, and then closes the window if it was to be closed meanwhile.
  void During(const std::function<void()>& command);

  bool IsRunning() const { return running_ > 0; }

  /// Whether the window has to stay for now; `event` is ignored then.
  bool Postpones(QCloseEvent& event);

 private:
  void CommandEnds();

  QWidget& window_;
  int running_ = 0;
  bool wanted_ = false;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_POSTPONED_CLOSE_H_
