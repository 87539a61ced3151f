#ifndef VENDLINGUA_CORE_FORMATS_HELD_MESSAGES_H_
#define VENDLINGUA_CORE_FORMATS_HELD_MESSAGES_H_

#include <cstddef>

#include "core/document/message_set.h"

namespace vendlingua {

/// How many messages of language `language` the open file holds whole, as it was last read:
/// `LastMsg` + 1, or fewer when the language ends early.
std::size_t MessagesHeld(const MessageSet& set, int language);

/// Whether a language of the open ".MES" file ends early: blanks stand for what is missing, until
/// the language is saved.
bool EndsEarly(const MessageSet& set, int language);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_HELD_MESSAGES_H_
