#ifndef VENDLINGUA_CORE_FORMATS_MESSAGE_TEXTS_H_
#define VENDLINGUA_CORE_FORMATS_MESSAGE_TEXTS_H_

#include "core/document/message_set.h"

namespace vendlingua {

/// Messages 0 to `LastMsg` of language `language` of the open file, whichever its type. Language 0
/// of a ".MSX" file is the built-in table; a new language (`kNewLanguage`) reads as blanks. Throws
/// Error when the file cannot be read.
MessageTexts TextsOf(const MessageSet& set, int language);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_MESSAGE_TEXTS_H_
