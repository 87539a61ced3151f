#ifndef VENDLINGUA_CORE_OPERATIONS_RENAME_LANGUAGE_H_
#define VENDLINGUA_CORE_OPERATIONS_RENAME_LANGUAGE_H_

#include "core/document/workspace.h"
#include "core/flash/compiler_state.h"
#include "core/platform/dialogs.h"

namespace vendlingua {

/// Asks for a new name of entry `language` and, after a confirmation, puts it into the menus, the
/// entry and the message file. A blank name ends the question, a name of another entry repeats it.
/// When the file cannot be written the user is told; menus and entry keep the new name.
void RenameLanguage(Workspace& workspace, CompilerState& compiler, Dialogs& dialogs, int language);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_RENAME_LANGUAGE_H_
