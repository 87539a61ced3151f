#ifndef VENDLINGUA_CORE_OPERATIONS_RENAME_LANGUAGE_H_
#define VENDLINGUA_CORE_OPERATIONS_RENAME_LANGUAGE_H_

#include "core/document/name_field.h"
#include "core/document/workspace.h"
#include "core/platform/dialogs.h"

namespace vendlingua {

/// Puts a new name of language `language` into the set and the message file. Throws FileError when
/// the file cannot be written, FileChangedError when it is another one by now; the set keeps the
/// new name.
void RenameLanguage(Workspace& workspace, Dialogs& dialogs, int language, const NameField& name);

/// Asks for a new name of language `language` and, after a confirmation, puts it into the set and
/// the message file. A blank name ends the question, the name of another language repeats it. When
/// the file cannot be written the user is told; the set keeps the new name.
void RenameLanguage(Workspace& workspace, Dialogs& dialogs, int language);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_RENAME_LANGUAGE_H_
