#ifndef VENDLINGUA_CORE_EXCHANGE_LANGUAGE_TAGS_H_
#define VENDLINGUA_CORE_EXCHANGE_LANGUAGE_TAGS_H_

#include <string>
#include <string_view>
#include <vector>

#include "core/document/message_set.h"

namespace vendlingua {

/// A language tag ("it", "pt-BR") for every language of the open file by its number, each once
/// among languages 1 and up: "en" where the name is that of a language, "en-x-lang7" where language
/// 7 is not the first of it, "x-lang7" where the name says nothing. Language 0 is the firmware's
/// own Italian.
std::vector<std::string> LanguageTags(const MessageSet& set);

/// The tag of a language by one of its names, whatever its case; empty when it is not known.
std::string LanguageTagOf(std::string_view name);

/// Whether `tag` has the form of a language tag.
bool IsLanguageTag(std::string_view tag);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_EXCHANGE_LANGUAGE_TAGS_H_
