#ifndef VENDLINGUA_CORE_TEXTS_ENGLISH_TEXTS_H_
#define VENDLINGUA_CORE_TEXTS_ENGLISH_TEXTS_H_

#include "core/texts/ui_text.h"

namespace vendlingua {

/// The interface texts in English, as the build found them in english.lng: the program can always
/// say what is wrong, and the command line needs no file for it.
const UiText& EnglishTexts();

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_TEXTS_ENGLISH_TEXTS_H_
