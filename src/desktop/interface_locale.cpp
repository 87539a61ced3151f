#include "desktop/interface_locale.h"

#include <QLatin1Char>
#include <QList>
#include <QStringList>

#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

// In lower case and without accents: the names of interface languages are written so.
QString Plain(const QString& name) {
  QString plain;
  for (const QChar character : name.normalized(QString::NormalizationForm_D).toLower()) {
    if (character.category() != QChar::Mark_NonSpacing) {
      plain += character;
    }
  }
  return plain;
}

// A locale calls its language by several words, as "español de España" does.
bool CallsItself(const QLocale& locale, const QString& name) {
  return Plain(locale.nativeLanguageName()).split(QLatin1Char(' ')).contains(Plain(name));
}

}  // namespace

QLocale::Language LanguageOf(const QString& name) {
  const QList<QLocale> all =
      QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
  for (const QLocale& locale : all) {
    if (CallsItself(locale, name)) {
      return locale.language();
    }
  }
  return QLocale::C;
}

std::string SystemLanguage(const std::vector<std::string>& names) {
  for (const QString& preferred : QLocale::system().uiLanguages()) {
    // Without its country: Dutch is called Flemish in Belgium.
    const QLocale locale(QLocale(preferred).language());
    for (const std::string& name : names) {
      if (CallsItself(locale, FromUtf8(name))) {
        return name;
      }
    }
  }
  return "english";
}

}  // namespace vendlingua
