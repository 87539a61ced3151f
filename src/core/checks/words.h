#ifndef VENDLINGUA_CORE_CHECKS_WORDS_H_
#define VENDLINGUA_CORE_CHECKS_WORDS_H_

#include <cstddef>
#include <span>

#include "core/document/alphabet.h"

namespace vendlingua {

/// What a text says whatever its layout: its words and signs with one blank between them, however
/// many blanks and placeholders stand there.
DisplayCodes WordsOf(std::span<const DisplayCode> text);

/// Whether the text holds a word that can be translated. Words of fewer than four letters do not
/// count: of those most are abbreviations and signs ("Rev.", "MDB", "NTC").
bool HoldsWords(const Alphabet& alphabet, std::span<const DisplayCode> text);

/// Whether the display draws nothing of the text; cells that the board fills do not count.
bool DrawsNothing(const Alphabet& alphabet, std::span<const DisplayCode> text);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_WORDS_H_
