#ifndef VENDLINGUA_CORE_OPERATIONS_NEW_LANGUAGE_H_
#define VENDLINGUA_CORE_OPERATIONS_NEW_LANGUAGE_H_

#include <optional>

#include "core/document/name_field.h"
#include "core/document/workspace.h"
#include "core/platform/dialogs.h"

namespace vendlingua {

/// Asks for the name of a new language until one is given that is not blank, not taken and can be
/// shown on the display.
NameField AskNewLanguageName(const Workspace& workspace, Dialogs& dialogs);

/// The same before there is a new language to be saved: no answer is a No.
std::optional<NameField> OfferNewLanguage(const Workspace& workspace, Dialogs& dialogs);

/// Gives a new destination language the first free place of the file. Throws FileError when there
/// is none, or when another program has added a language of that name meanwhile.
void AddLanguage(MessageSet& set, const NameField& name);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_NEW_LANGUAGE_H_
