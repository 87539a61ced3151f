#ifndef VENDLINGUA_CORE_CHECKS_MEANT_GLYPHS_H_
#define VENDLINGUA_CORE_CHECKS_MEANT_GLYPHS_H_

#include <span>

#include "core/document/alphabet.h"

namespace vendlingua {

/// Whether the display draws a code of the text as something else than the accented letter, or the
/// degree sign of a temperature, that was most likely meant: the one of Windows-1252, in which
/// texts for other displays are typed. What a code was meant for shows in its neighbours; where
/// they leave doubt it is what the display draws.
bool DrawsAnotherGlyphThanMeant(const Alphabet& alphabet, std::span<const DisplayCode> text);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_MEANT_GLYPHS_H_
