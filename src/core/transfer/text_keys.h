#ifndef VENDLINGUA_CORE_TRANSFER_TEXT_KEYS_H_
#define VENDLINGUA_CORE_TRANSFER_TEXT_KEYS_H_

#include <span>
#include <string>

#include "core/document/display_code.h"

namespace vendlingua {

/// Whether a text has anything to translate: a cell that is neither blank nor filled by the board.
bool HasWords(std::span<const DisplayCode> text);

/// A text without regard to its layout: no blanks at its ends, and one blank or placeholder for
/// each run of them.
std::string WithoutLayout(std::span<const DisplayCode> text);

/// What is the same of two texts that differ in their blanks and in the columns of their
/// placeholders only.
std::string WordsKey(std::span<const DisplayCode> text);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_TRANSFER_TEXT_KEYS_H_
