#ifndef VENDLINGUA_DESKTOP_QT_PATH_H_
#define VENDLINGUA_DESKTOP_QT_PATH_H_

#include <QString>
#include <filesystem>

namespace vendlingua {

/// A path as Qt writes it. What of it is no Unicode becomes U+FFFD: it can be shown, but leads
/// nowhere.
inline QString ToQString(const std::filesystem::path& path) {
#ifdef _WIN32
  return QString::fromStdWString(path.generic_wstring());
#else
  return QString::fromStdString(path.native());
#endif
}

/// A path that Qt wrote.
inline std::filesystem::path ToPath(const QString& path) {
#ifdef _WIN32
  return path.toStdWString();
#else
  return path.toStdString();
#endif
}

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_QT_PATH_H_
