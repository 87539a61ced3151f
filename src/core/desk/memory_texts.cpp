#include "core/desk/memory_texts.h"

#include "core/desk/row_state.h"
#include "core/document/alphabet.h"
#include "core/exchange/language_tags.h"
#include "core/transfer/carried_texts.h"

namespace vendlingua {
namespace {

constexpr const char* kFirmwareTag = "it";

std::string TagOf(const MessageSet& set, int language) {
  return language == 0 ? kFirmwareTag
                       : LanguageTagOf(set.language_names.at(static_cast<std::size_t>(language)));
}

std::optional<int> LanguageIn(const MessageSet& memory, const std::string& name,
                              const std::string& tag) {
  for (int language = 1; memory.HoldsLanguage(language); ++language) {
    if (memory.language_names[static_cast<std::size_t>(language)] == name) {
      return language;
    }
  }
  for (int language = 1; !tag.empty() && memory.HoldsLanguage(language); ++language) {
    if (TagOf(memory, language) == tag) {
      return language;
    }
  }
  return tag == kFirmwareTag ? std::optional(0) : std::nullopt;
}

// The same characters in the codes of another display; blank when that does not draw one of them.
DisplayText InAlphabet(const DisplayText& text, const Alphabet& from, const Alphabet& to) {
  DisplayCodes codes(text.Cells().begin(), text.Cells().end());
  for (DisplayCode& code : codes) {
    if (code == kPlaceholder) {
      continue;
    }
    const auto same = to.CodeOf(from.CharacterOf(code));
    if (!same || to.CharacterOf(*same) != from.CharacterOf(code)) {
      return {};
    }
    code = *same;
  }
  return DisplayText(codes);
}

void Convert(MemoryTexts& texts, std::size_t from, std::size_t to) {
  if (from == to) {
    return;
  }
  for (MessageTexts* of_language : {&texts.origins, &texts.translations}) {
    for (DisplayText& text : *of_language) {
      text = InAlphabet(text, Alphabet::Of(from), Alphabet::Of(to));
    }
  }
}

}  // namespace

std::string DestinationName(const MessageSet& set) {
  if (set.phase != Phase::kDestinationUnnamed) {
    return set.language_names.at(set.DestLang);
  }
  if (set.new_language_name) {
    return set.new_language_name->Caption();
  }
  const auto message = static_cast<std::size_t>(set.NameMessage());
  return message < set.MessageCount() ? ToUtf8(Trim(set.DestText[message].First(set.Width()))) : "";
}

DisplayText WithBoardCells(const MessageSet& set, std::size_t message, const DisplayText& text) {
  DisplayCodes codes(text.Cells().begin(), text.Cells().end());
  for (std::size_t cell = 0; cell < set.Width(); ++cell) {
    if (codes[cell] == kBlank && set.BoardFills(message, cell)) {
      codes[cell] = kPlaceholder;
    }
  }
  return DisplayText(codes);
}

DisplayText OwnTranslation(const MessageSet& set, std::size_t message) {
  return IsToDo(set, message) ? DisplayText()
                              : WithBoardCells(set, message, set.DestText.at(message));
}

MemoryTexts OwnTexts(const MessageSet& set) {
  MemoryTexts texts;
  for (std::size_t message = 0; message < set.MessageCount(); ++message) {
    texts.origins.push_back(WithBoardCells(set, message, set.OriginText.at(message)));
    texts.translations.push_back(OwnTranslation(set, message));
  }
  return texts;
}

std::optional<MemoryTexts> TextsFromMemory(const MessageSet& set, const MessageSet& memory) {
  const int origin = set.origin_language.value_or(0);
  const auto from = LanguageIn(memory, set.language_names.at(static_cast<std::size_t>(origin)),
                               TagOf(set, origin));
  const std::string name = DestinationName(set);
  const auto into = LanguageIn(memory, name, LanguageTagOf(name));
  if (!from || !into || *from == *into) {
    return std::nullopt;
  }
  MemoryTexts texts{TextsToCarry(memory, *from), TextsToCarry(memory, *into)};
  for (std::size_t message = 0; message < texts.translations.size(); ++message) {
    if (texts.translations[message] == texts.origins[message]) {
      texts.translations[message] = DisplayText();
    }
  }
  Convert(texts, memory.DisplayType, set.DisplayType);
  return texts;
}

}  // namespace vendlingua
