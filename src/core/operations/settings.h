#ifndef VENDLINGUA_CORE_OPERATIONS_SETTINGS_H_
#define VENDLINGUA_CORE_OPERATIONS_SETTINGS_H_

#include <filesystem>
#include <string>

#include "core/document/workspace.h"

namespace vendlingua {

/// Reads the name of the interface language from a settings file. Nothing is changed when the file
/// is missing, cannot be read or holds none.
void ReadSettings(const std::filesystem::path& file, std::string& language_name);

/// Writes the settings file anew. Throws FileError.
void WriteSettings(const std::filesystem::path& file, const std::string& language_name);

/// Reads `LanguageName` from the file beside the program or, where this user may not write that
/// one, from the user's own; from the other one where one of them holds no name.
void ReadSettings(Workspace& workspace);

/// Writes the chosen interface language beside the program or, where that folder
/// is read-only, into the user's own file. Throws FileError when neither can be written.
void WriteSettings(const Workspace& workspace);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_SETTINGS_H_
