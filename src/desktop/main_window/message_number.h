#ifndef VENDLINGUA_DESKTOP_MAIN_WINDOW_MESSAGE_NUMBER_H_
#define VENDLINGUA_DESKTOP_MAIN_WINDOW_MESSAGE_NUMBER_H_

#include <QLabel>
#include <QMouseEvent>

namespace vendlingua {

/// The number of the message that is shown (`Label6`). A click asks for another one.
class MessageNumber : public QLabel {
  Q_OBJECT

 public:
  explicit MessageNumber(QWidget* parent) : QLabel(parent) {
    setObjectName(QStringLiteral("Label6"));
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
  }

  void Show(int number, bool can_go) {
    setText(QString::number(number));
    setAccessibleDescription(text());
    setCursor(can_go ? Qt::PointingHandCursor : Qt::ArrowCursor);
  }

 signals:
  void Clicked();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
      emit Clicked();
    }
  }
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_MAIN_WINDOW_MESSAGE_NUMBER_H_
