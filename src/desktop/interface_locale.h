#ifndef VENDLINGUA_DESKTOP_INTERFACE_LOCALE_H_
#define VENDLINGUA_DESKTOP_INTERFACE_LOCALE_H_

#include <QLocale>
#include <QString>
#include <string>
#include <vector>

namespace vendlingua {

/// The language that calls itself `name`, in any case and without accents, as "espanol" does in
/// "español de España"; QLocale::C where none does.
QLocale::Language LanguageOf(const QString& name);

/// Of the interface languages `names` the first that the system prefers, else English: what a first
/// start speaks.
std::string SystemLanguage(const std::vector<std::string>& names);

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_INTERFACE_LOCALE_H_
