#include "core/checks/language_texts.h"

#include "core/formats/held_messages.h"
#include "core/formats/message_texts.h"

namespace vendlingua {
namespace {

// The messages that a language which ends early does hold: those of a set that declares no more.
MessageTexts FirstTexts(MessageSet set, int language, std::size_t count) {
  if (count == 0) {
    return {};
  }
  set.LastMsg = static_cast<std::uint16_t>(count - 1);
  return TextsOf(set, language);
}

LanguageTexts ReadLanguage(const MessageSet& set, int language) {
  LanguageTexts read;
  read.held = MessagesHeld(set, language);
  read.texts = read.held == set.MessageCount() ? TextsOf(set, language)
                                               : FirstTexts(set, language, read.held);
  read.texts.resize(set.MessageCount());
  return read;
}

}  // namespace

std::vector<LanguageTexts> ReadLanguages(const MessageSet& set) {
  std::vector<LanguageTexts> languages;
  for (std::size_t language = 0; language < set.language_names.size(); ++language) {
    languages.push_back(ReadLanguage(set, static_cast<int>(language)));
  }
  return languages;
}

}  // namespace vendlingua
