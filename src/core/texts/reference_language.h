#ifndef VENDLINGUA_CORE_TEXTS_REFERENCE_LANGUAGE_H_
#define VENDLINGUA_CORE_TEXTS_REFERENCE_LANGUAGE_H_

#include <string_view>

namespace vendlingua {

/// The bytes of italiano.lng as the build found it: the last resort of a program whose language
/// files cannot be read.
std::string_view ReferenceLanguage();

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_TEXTS_REFERENCE_LANGUAGE_H_
