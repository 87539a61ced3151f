#ifndef VENDLINGUA_DESKTOP_ELEMENT_NAME_H_
#define VENDLINGUA_DESKTOP_ELEMENT_NAME_H_

#include <QString>
#include <concepts>

namespace vendlingua {

/// The name of element `index` of a control array: "Label5(0)".
template <std::integral Index>
QString ElementName(const char* array, Index index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(index);
}

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_ELEMENT_NAME_H_
