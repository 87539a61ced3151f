#ifndef VENDLINGUA_DESKTOP_USER_SETTINGS_H_
#define VENDLINGUA_DESKTOP_USER_SETTINGS_H_

#include <QSettings>

namespace vendlingua {

/// What windows remember for the user, beside what the program keeps in its settings file.
class UserSettings : public QSettings {
 public:
  UserSettings()
      : QSettings(NativeFormat, UserScope, QStringLiteral("vendlingua"), QStringLiteral("desk")) {}
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_USER_SETTINGS_H_
