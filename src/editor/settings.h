#ifndef VENDLINGUA_EDITOR_SETTINGS_H_
#define VENDLINGUA_EDITOR_SETTINGS_H_

#include <filesystem>
#include <string>

namespace vendlingua {

/// The settings file: one line, "Lingua=" followed by the name of the interface language.
///
/// Reads that name: what follows the first seven characters, whatever they are. Nothing is changed
/// when the file is missing, cannot be read or its first line is shorter.
void ReadSettings(const std::filesystem::path& file, std::string& language_name);

/// Writes the settings file anew. Throws FileError.
void WriteSettings(const std::filesystem::path& file, const std::string& language_name);

}  // namespace vendlingua

#endif  // VENDLINGUA_EDITOR_SETTINGS_H_
