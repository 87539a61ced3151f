#ifndef VENDLINGUA_CORE_FORMATS_SETTINGS_FILE_H_
#define VENDLINGUA_CORE_FORMATS_SETTINGS_FILE_H_

#include <optional>
#include <string>
#include <string_view>

namespace vendlingua {

/// The name of the interface language (UTF-8) that a settings file holds: what follows the first
/// seven characters of its first line, whatever they are. Nothing when that line is shorter. A file
/// that begins with a byte order mark is read as UTF-8, any other as Windows-1252.
std::optional<std::string> ParseSettings(std::string_view content);

/// The settings file for a language: one line, "Lingua=" followed by its name; in Windows-1252 or,
/// where that lacks a character of the name, in UTF-8 behind a byte order mark.
std::string ComposeSettings(const std::string& language_name);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_SETTINGS_FILE_H_
