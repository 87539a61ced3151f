#include "desktop/main_window/message_selector.h"

#include <QSignalBlocker>
#include <QWheelEvent>

namespace vendlingua {

MessageSelector::MessageSelector(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {
  setObjectName(QStringLiteral("HScroll1"));
  setFocusPolicy(Qt::StrongFocus);
  setRange(0, 0);
  setEnabled(false);
}

void MessageSelector::Show(const ViewState& view) {
  const QSignalBlocker blocker(this);
  setEnabled(view.HScroll1.enabled);
  setMaximum(view.HScroll1.max);
  setValue(view.HScroll1.value);
}

void MessageSelector::wheelEvent(QWheelEvent* event) {
  wheel_angle_ += event->angleDelta().y();
  const int notches = wheel_angle_ / QWheelEvent::DefaultDeltasPerStep;
  wheel_angle_ -= notches * QWheelEvent::DefaultDeltasPerStep;
  setValue(value() - notches);
  event->accept();
}

}  // namespace vendlingua
