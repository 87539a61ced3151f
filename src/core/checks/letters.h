#ifndef VENDLINGUA_CORE_CHECKS_LETTERS_H_
#define VENDLINGUA_CORE_CHECKS_LETTERS_H_

#include "core/document/alphabet.h"

// The letters of the scripts that the displays draw.

namespace vendlingua {

bool IsDigit(char32_t character);
bool IsLetter(char32_t character);

/// Latin letters have a case for the checks, those of other scripts none.
bool IsSmallLatin(char32_t character);
bool IsCapitalLatin(char32_t character);

/// The character that the picture of `code` shows; 0 for a placeholder, whose cell the board fills,
/// and for a picture that shows none.
char32_t DrawnCharacter(const Alphabet& alphabet, DisplayCode code);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_LETTERS_H_
