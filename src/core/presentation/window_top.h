#ifndef VENDLINGUA_CORE_PRESENTATION_WINDOW_TOP_H_
#define VENDLINGUA_CORE_PRESENTATION_WINDOW_TOP_H_

#include <algorithm>

namespace vendlingua {

/// Where the main window goes when it becomes active. Its first place is remembered, so that
/// repeated activations do not walk it up the screen. In twips.
class WindowTop {
 public:
  /// The new top of a window whose top is `top` now.
  int Activate(int top) {
    constexpr int kLift = 2000;
    if (remembered_ == 0) {
      remembered_ = top;
    }
    return std::max(remembered_ - kLift, 0);
  }

 private:
  int remembered_ = 0;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PRESENTATION_WINDOW_TOP_H_
