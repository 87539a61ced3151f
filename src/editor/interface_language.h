#ifndef VENDLINGUA_EDITOR_INTERFACE_LANGUAGE_H_
#define VENDLINGUA_EDITOR_INTERFACE_LANGUAGE_H_

#include <string>

#include "model/workspace.h"

namespace vendlingua {

/// The extension of interface language files: text in Windows-1252, one entry a line.
inline constexpr char kLanguageFileExtension[] = ".lng";

/// Reads the language file `file_name` of the program's folder into the interface texts, from entry
/// 1 on. Entries behind its last line keep their texts. Throws FileError.
void LoadLanguageFile(Workspace& workspace, const std::string& file_name);

/// Whether the file `candidate` can take the place of `current`, both in the program's folder: it
/// has no fewer lines, and every section mark (";--") of `current` stands on the same line of it.
/// Loads the candidate on the way, so that after false a good file has to be loaded again. Throws
/// FileError.
bool CheckLanguageFile(Workspace& workspace, const std::string& current,
                       const std::string& candidate);

/// Captions all menus in the interface language.
void InitMenu(Workspace& workspace);

}  // namespace vendlingua

#endif  // VENDLINGUA_EDITOR_INTERFACE_LANGUAGE_H_
