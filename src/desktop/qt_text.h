#ifndef VENDLINGUA_DESKTOP_QT_TEXT_H_
#define VENDLINGUA_DESKTOP_QT_TEXT_H_

#include <QString>
#include <string>

namespace vendlingua {

/// What people read, which is UTF-8 outside of the windows, as the windows take it.
inline QString FromUtf8(const std::string& text) { return QString::fromStdString(text); }

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_QT_TEXT_H_
