#ifndef VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_CHANGE_H_
#define VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_CHANGE_H_

#include <functional>
#include <string>
#include <vector>

#include "core/document/workspace.h"
#include "core/platform/dialogs.h"
#include "core/platform/file_patch.h"

namespace vendlingua {

/// Makes the patches of a change for a file that holds `content`. The set has by then what other
/// programs changed in the file.
using PatchBuilder = std::function<std::vector<FilePatch>(const std::string& content)>;

/// The one way to change the open message file in place: locks it, reads it again, takes over what
/// others changed since it was read, and patches it, all or nothing and onto the disk; see
/// in_place_change.h. A message that both changed is asked about while the file is not locked.
/// Throws FileChangedError when the file is another one now or such a question stays open,
/// FileError when it cannot be read or written; what the file held then stays.
void ChangeMessageFile(Workspace& workspace, Dialogs& dialogs, const PatchBuilder& build);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_CHANGE_H_
