#ifndef VENDLINGUA_DESKTOP_RUN_COMMAND_H_
#define VENDLINGUA_DESKTOP_RUN_COMMAND_H_

#include <QWidget>
#include <functional>

namespace vendlingua {

/// Does a command of the user that belongs to `window`: shows its errors and mirrors all windows
/// afterwards.
using RunCommand = std::function<void(const std::function<void()>& command, QWidget& window)>;

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_RUN_COMMAND_H_
