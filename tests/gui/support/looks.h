#ifndef VENDLINGUA_TESTS_GUI_SUPPORT_LOOKS_H_
#define VENDLINGUA_TESTS_GUI_SUPPORT_LOOKS_H_

#include <QStringList>
#include <QWidget>

namespace vendlingua::test {

/// What a user sees of a window, one line for its title and for every menu entry and control: to
/// tell whether a command left everything as it was.
QStringList LooksOf(const QWidget& window);

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_GUI_SUPPORT_LOOKS_H_
