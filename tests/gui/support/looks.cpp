#include "gui/support/looks.h"

#include <QAction>
#include <QVariant>

namespace vendlingua::test {
namespace {

// Properties that an object does not have are left out.
template <typename Object>
QStringList Properties(const Object& object, std::initializer_list<const char*> names) {
  QStringList line{object.objectName()};
  for (const char* name : names) {
    const QVariant value = object.property(name);
    if (value.isValid()) {
      line += QLatin1String(name) + QLatin1Char('=') + value.toString();
    }
  }
  return line;
}

}  // namespace

QStringList LooksOf(const QWidget& window) {
  QStringList looks{window.windowTitle()};
  for (const QAction* entry : window.findChildren<QAction*>()) {
    looks += Properties(*entry, {"text", "visible", "enabled", "checked"}).join(QLatin1Char(' '));
  }
  for (const QWidget* control : window.findChildren<QWidget*>()) {
    looks += Properties(*control, {"text", "value", "maximum", "visible", "enabled", "size"})
                 .join(QLatin1Char(' '));
  }
  return looks;
}

}  // namespace vendlingua::test
