#ifndef VENDLINGUA_CORE_OPERATIONS_OUTSIDE_CHANGES_H_
#define VENDLINGUA_CORE_OPERATIONS_OUTSIDE_CHANGES_H_

#include <string>
#include <vector>

#include "core/document/workspace.h"
#include "core/formats/file_merge.h"

namespace vendlingua {

/// TakeOverChanges() for the set that is shown: what was typed stays in the edit box unless the
/// message that is shown became another one.
std::vector<EditConflict> TakeOverIntoView(Workspace& workspace, const std::string& content,
                                           const std::vector<DecidedConflict>& decided);

/// What another program did to the file while it is open.
enum class OutsideChange {
  kNone,       ///< it is what was read or written here last
  kTakenOver,  ///< the set has now what others changed, and its own edits
  kUndecided,  ///< both changed the same: the set stays as it is, the next save asks
  kUnusable,   ///< it is gone, cannot be read or is another one: the set stays as it is
};

/// Looks at the open file and takes over what others changed. All but kNone is told in the status.
OutsideChange NoticeOutsideChange(Workspace& workspace);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_OUTSIDE_CHANGES_H_
