#ifndef VENDLINGUA_CORE_OPERATIONS_INTERFACE_LANGUAGE_H_
#define VENDLINGUA_CORE_OPERATIONS_INTERFACE_LANGUAGE_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/document/workspace.h"
#include "core/operations/language_files.h"
#include "core/platform/dialogs.h"
#include "core/platform/errors.h"

namespace vendlingua {

/// The language file that all others follow.
inline constexpr std::string_view kReferenceLanguageFile = "italiano.lng";

/// Why the language file `file_name` of the program's folder cannot be used; nothing when it can.
std::optional<FileError> DefectOf(const Workspace& workspace, const std::string& file_name);

/// What a language file may at most hold: its lines have to be drawn.
inline constexpr std::uint64_t kLanguageFileLimit = 1U << 20U;

/// Reads the language file `file_name` of the program's folder, text in Windows-1252, into the
/// interface texts: one entry a line, from entry 1 on. Entries behind its last line keep their
/// texts. The reference that cannot be read is built in. Throws FileError.
void LoadLanguageFile(Workspace& workspace, const std::string& file_name);

/// Whether the file `candidate` can take the place of `current`, both in the program's folder: it
/// has no fewer lines, and every section mark (";--") of `current` stands on the same line of it.
/// Loads the candidate on the way, so that after false a good file has to be loaded again. Throws
/// FileError.
bool CheckLanguageFile(Workspace& workspace, const std::string& current,
                       const std::string& candidate);

/// `smnuLingue`(index): changes to another interface language and writes the settings. A file that
/// does not fit the one in use is refused with a warning. Throws FileError; when a language file
/// cannot be read, the language in use stays.
void ChooseInterfaceLanguage(Workspace& workspace, Dialogs& dialogs, std::size_t index);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_INTERFACE_LANGUAGE_H_
