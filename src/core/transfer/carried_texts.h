#ifndef VENDLINGUA_CORE_TRANSFER_CARRIED_TEXTS_H_
#define VENDLINGUA_CORE_TRANSFER_CARRIED_TEXTS_H_

#include <span>

#include "core/document/message_set.h"

namespace vendlingua {

/// The messages of language `language` of a file as they are carried over. In a ".MSX" file, whose
/// compiled messages have blanks there, the cells that the board fills are placeholders again.
/// Throws Error when they cannot be read or are wider than can be edited.
MessageTexts TextsToCarry(const MessageSet& set, int language);

/// The cells of a carried text as the file of `set` holds them.
DisplayCodes CellsToStore(const MessageSet& set, const DisplayText& text);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_TRANSFER_CARRIED_TEXTS_H_
