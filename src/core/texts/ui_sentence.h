#ifndef VENDLINGUA_CORE_TEXTS_UI_SENTENCE_H_
#define VENDLINGUA_CORE_TEXTS_UI_SENTENCE_H_

#include <fmt/format.h>

#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "core/texts/ui_text.h"

namespace vendlingua {

/// An interface text with its values, which can be said in every interface language. The text holds
/// "{0}", "{1}", ... where the values go.
class UiSentence {
 public:
  /// A value is a number, a text in UTF-8, or a sentence that is part of this one.
  template <typename... Values>
  explicit UiSentence(UiTextId id, const Values&... values) : id_(id), values_{Value(values)...} {}

  /// Words that are said as they stand, such as the system's.
  static UiSentence Verbatim(const std::string& words) { return UiSentence(UiTextId{}, words); }

  /// A text that `texts` lack, or whose braces fit no value, is said in English.
  std::string In(const UiText& texts) const;

 private:
  struct Value {
    explicit Value(std::string_view value) : text(value) {}
    explicit Value(const UiSentence& part) : sentence(std::make_shared<UiSentence>(part)) {}
    template <typename Number>
    requires std::is_arithmetic_v<Number>
    explicit Value(Number number) : text(fmt::to_string(number)) {}

    std::string text;
    std::shared_ptr<const UiSentence> sentence;
  };

  std::string Compose(const std::string& text, const UiText& texts) const;

  UiTextId id_;
  std::vector<Value> values_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_TEXTS_UI_SENTENCE_H_
