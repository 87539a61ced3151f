#include "core/desk/language_list.h"

#include "core/formats/message_texts.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

std::optional<Progress> ProgressOfLanguage(const MessageSet& set, int language) {
  try {
    return ProgressOf(set, TextsOf(set, language));
  } catch (const Error&) {
    return std::nullopt;
  }
}

}  // namespace

std::vector<ListedLanguage> ListLanguages(const MessageSet& set) {
  std::vector<ListedLanguage> languages;
  for (int number = 1; set.HoldsLanguage(number); ++number) {
    ListedLanguage language{.number = number,
                            .name = set.language_names[static_cast<std::size_t>(number)]};
    language.is_origin = number == set.origin_language;
    language.is_destination = set.DestinationIsOpen() && number == set.DestLang;
    if (language.is_destination) {
      language.progress = ProgressOf(set);
    } else if (set.origin_language && !language.is_origin) {
      language.progress = ProgressOfLanguage(set, number);
    }
    languages.push_back(language);
  }
  return languages;
}

}  // namespace vendlingua
