#ifndef VENDLINGUA_DESKTOP_MAIN_WINDOW_MESSAGE_SELECTOR_H_
#define VENDLINGUA_DESKTOP_MAIN_WINDOW_MESSAGE_SELECTOR_H_

#include <QScrollBar>

#include "core/presentation/view_state.h"

namespace vendlingua {

/// The scroll bar that steps from message to message (`HScroll1`).
class MessageSelector : public QScrollBar {
  Q_OBJECT

 public:
  explicit MessageSelector(QWidget* parent);

  void Show(const ViewState& view);

 protected:
  /// One message a notch; a scroll bar by itself would take several.
  void wheelEvent(QWheelEvent* event) override;

 private:
  int wheel_angle_ = 0;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_MAIN_WINDOW_MESSAGE_SELECTOR_H_
