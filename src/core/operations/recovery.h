#ifndef VENDLINGUA_CORE_OPERATIONS_RECOVERY_H_
#define VENDLINGUA_CORE_OPERATIONS_RECOVERY_H_

#include <filesystem>

#include "core/platform/dialogs.h"
#include "core/texts/ui_text.h"

namespace vendlingua {

/// Before a message file is read: when a save of it was interrupted, asks whether it shall be put
/// back to what it held before; No leaves it as it is for good. An undo file that does not fit the
/// file is told of and not used. Throws FileError when the file cannot be put back.
void OfferRecovery(const UiText& ui_text, Dialogs& dialogs, const std::filesystem::path& file);

/// Puts a file back to what it held before the save that was interrupted. False when none was.
/// Throws FileError, with the file as it was, when the undo file beside it cannot be used.
bool Recover(const std::filesystem::path& file);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_RECOVERY_H_
