#ifndef VENDLINGUA_DESKTOP_ICON_H_
#define VENDLINGUA_DESKTOP_ICON_H_

#include <QIcon>
#include <QLatin1String>

namespace vendlingua {

/// One of our icons, by the name of its drawing in data/icons.
QIcon Icon(QLatin1String name);

/// The icon of the program, which is shown as large as 256 pixels.
QIcon ProgramIcon();

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_ICON_H_
