#ifndef VENDLINGUA_CORE_OPERATIONS_DISPLAY_TYPE_H_
#define VENDLINGUA_CORE_OPERATIONS_DISPLAY_TYPE_H_

#include <cstddef>

#include "core/document/workspace.h"
#include "core/platform/dialogs.h"

namespace vendlingua {

/// Gives the open file display type `type` (0 to 3) at once, as choosing it in `mnuLCD` and saving
/// would. Throws FileError when files of its kind do not hold that type or it cannot be written.
void StoreDisplayType(Workspace& workspace, Dialogs& dialogs, std::size_t type);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_DISPLAY_TYPE_H_
