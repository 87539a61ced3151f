#ifndef VENDLINGUA_DESKTOP_DESK_UPRIGHT_AREA_H_
#define VENDLINGUA_DESKTOP_DESK_UPRIGHT_AREA_H_

#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>

namespace vendlingua {

/// Scrolls what it shows up and down alone: it is never narrower than that.
class UprightArea : public QScrollArea {
 public:
  explicit UprightArea(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  }

  QSize minimumSizeHint() const override {
    const int width = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
    return {width, QScrollArea::minimumSizeHint().height()};
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::LayoutRequest) {
      updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
  }
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_UPRIGHT_AREA_H_
