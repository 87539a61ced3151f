#include "gui/support/drag.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "desktop/fonts/widget_text.h"
#include "desktop/main_window/destination_edit.h"

namespace vendlingua::test {
namespace {

constexpr int kIntoTheDrag = 100;  // milliseconds

void MoveAndRelease(QWindow& window, const QPoint& from, const QPoint& to) {
  // A drag runs in a loop of its own: what the mouse does meanwhile has to wait for it there.
  QTimer::singleShot(kIntoTheDrag, &window, [&window, to] {
    QTest::mouseMove(&window, to);
    QTest::mouseRelease(&window, Qt::LeftButton, Qt::NoModifier, to);
  });
  QTest::mouseMove(&window, from + QPoint(0, 2 * QApplication::startDragDistance()));
}

void DeliverDrop(const QLabel& character, QLineEdit& edit_box, const QPoint& position) {
  const DisplayCodes codes = FromWidgetText(character.text());
  QMimeData dragged;
  dragged.setData(QString(kDraggedCodeType), QByteArray(1, static_cast<char>(codes.at(0))));
  QDragEnterEvent enter(position, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&edit_box, &enter);
  if (enter.isAccepted() && edit_box.isEnabled()) {
    QDropEvent drop(position, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&edit_box, &drop);
  }
}

}  // namespace

void DragCharacter(QLabel& character, QLineEdit& edit_box, const QPoint& position) {
  QWidget* form = character.window();
  QWindow& window = *form->windowHandle();
  const QPoint from = character.mapTo(form, character.rect().center());
  QTest::mousePress(&window, Qt::LeftButton, Qt::NoModifier, from);
  if (QApplication::platformName() == QStringLiteral("offscreen")) {
    DeliverDrop(character, edit_box, position);
    QTest::mouseRelease(&window, Qt::LeftButton, Qt::NoModifier, from);
  } else {
    const QString before = edit_box.text();
    MoveAndRelease(window, from, edit_box.mapTo(form, position));
    if (!QTest::qWaitFor([&] { return edit_box.text() != before; })) {
      qFatal("the character that was dragged did not arrive");
    }
  }
}

}  // namespace vendlingua::test
