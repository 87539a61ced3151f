#ifndef VENDLINGUA_DESKTOP_QT_PATH_H_
#define VENDLINGUA_DESKTOP_QT_PATH_H_

#include <QString>
#include <filesystem>

namespace vendlingua {

/// Paths as Qt writes them, and back.
inline QString ToQString(const std::filesystem::path& path) {
  return QString::fromStdU16String(path.generic_u16string());
}

inline std::filesystem::path ToPath(const QString& path) { return path.toStdU16String(); }

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_QT_PATH_H_
