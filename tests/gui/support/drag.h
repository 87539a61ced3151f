#ifndef VENDLINGUA_TESTS_GUI_SUPPORT_DRAG_H_
#define VENDLINGUA_TESTS_GUI_SUPPORT_DRAG_H_

#include <QLabel>
#include <QLineEdit>
#include <QPoint>

namespace vendlingua::test {

/// Drags a character of the map with the mouse and drops it on the edit box at `position`. The
/// offscreen platform cannot drag: there the edit box gets the events that it would get.
void DragCharacter(QLabel& character, QLineEdit& edit_box, const QPoint& position);

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_GUI_SUPPORT_DRAG_H_
