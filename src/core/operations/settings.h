#ifndef VENDLINGUA_CORE_OPERATIONS_SETTINGS_H_
#define VENDLINGUA_CORE_OPERATIONS_SETTINGS_H_

#include <filesystem>
#include <string>

#include "core/document/workspace.h"

namespace vendlingua {

/// The settings file: one line, "Lingua=" followed by the name of the interface language.
///
/// Reads that name: what follows the first seven characters, whatever they are. Nothing is changed
/// when the file is missing, cannot be read or its first line is shorter.
void ReadSettings(const std::filesystem::path& file, std::string& language_name);

/// Writes the settings file anew. Throws FileError.
void WriteSettings(const std::filesystem::path& file, const std::string& language_name);

/// Reads `LanguageName`. The user's own file, which exists where the program's folder is read-only,
/// goes before the one beside the program.
void ReadSettings(Workspace& workspace);

/// Writes the chosen interface language beside the program or, where that folder
/// is read-only, into the user's own file. Throws FileError when neither can be written.
void WriteSettings(const Workspace& workspace);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_SETTINGS_H_
