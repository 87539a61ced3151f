#include "core/texts/ui_sentence.h"

#include <fmt/args.h>

#include "core/texts/english_texts.h"

namespace vendlingua {

std::string UiSentence::In(const UiText& texts) const {
  if (id_ == UiTextId{}) {
    return values_.front().text;
  }
  const std::string& english = EnglishTexts()[id_];
  const std::string& text = texts[id_];
  try {
    return Compose(text.empty() ? english : text, texts);
  } catch (const fmt::format_error&) {
    return Compose(english, texts);
  }
}

std::string UiSentence::Compose(const std::string& text, const UiText& texts) const {
  fmt::dynamic_format_arg_store<fmt::format_context> arguments;
  for (const Value& value : values_) {
    arguments.push_back(value.sentence ? value.sentence->In(texts) : value.text);
  }
  return fmt::vformat(text, arguments);
}

}  // namespace vendlingua
