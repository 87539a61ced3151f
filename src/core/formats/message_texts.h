#ifndef VENDLINGUA_CORE_FORMATS_MESSAGE_TEXTS_H_
#define VENDLINGUA_CORE_FORMATS_MESSAGE_TEXTS_H_

#include "core/formats/mes_file.h"

namespace vendlingua {

/// Reads messages 0 to `LastMsg` of language `language` of the open file, whichever its type; a new
/// language (`kNewLanguage`) reads as blanks. Later elements of `texts` keep what they held, and
/// all of them do when the reading fails. Throws Error when the file cannot be read.
void ReadLanguageTexts(const MessageSet& set, int language, MessageTexts& texts);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_MESSAGE_TEXTS_H_
