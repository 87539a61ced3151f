#ifndef VENDLINGUA_CORE_OPERATIONS_TAKEN_NAMES_H_
#define VENDLINGUA_CORE_OPERATIONS_TAKEN_NAMES_H_

#include "core/document/message_set.h"
#include "core/document/name_field.h"

namespace vendlingua {

/// Whether another language than `language` has the name. A new language is `kNewLanguage`.
bool NameIsTaken(const MessageSet& set, int language, const NameField& name);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_TAKEN_NAMES_H_
