#ifndef VENDLINGUA_CORE_FORMATS_MESSAGE_TEXTS_H_
#define VENDLINGUA_CORE_FORMATS_MESSAGE_TEXTS_H_

#include <string_view>

#include "core/document/message_set.h"

namespace vendlingua {

/// Whether the texts of a language stand in the file: not so those of a new language, and language
/// 0 of a ".MSX" file, which is the built-in table.
bool IsInFile(const MessageSet& set, int language);

/// Messages 0 to `LastMsg` of language `language` of the open file, whichever its type. Language 0
/// of a ".MSX" file is the built-in table; a new language (`kNewLanguage`) reads as blanks. Throws
/// Error when the file cannot be read.
MessageTexts TextsOf(const MessageSet& set, int language);

/// The same of a file whose content is given.
MessageTexts TextsOf(const MessageSet& set, std::string_view content, int language);

/// The messages of a language that the file holds, one behind the other, with all cells of those
/// that are wider than a text of the set.
DisplayCodes CellsOf(const MessageSet& set, std::string_view content, int language);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_MESSAGE_TEXTS_H_
