#ifndef VENDLINGUA_CORE_TEXTS_UI_TEXT_H_
#define VENDLINGUA_CORE_TEXTS_UI_TEXT_H_

#include <cstddef>
#include <string>
#include <vector>

#include "core/texts/ui_text_id.h"

namespace vendlingua {

/// The numbered texts of the interface language in use: entry k is line k of its ".lng" file, in
/// UTF-8.
class UiText {
 public:
  const std::string& operator[](UiTextId id) const { return Entry(static_cast<std::size_t>(id)); }

  /// Entry `number`, counted from 1; empty when no file had so many lines.
  const std::string& Entry(std::size_t number) const {
    static const std::string kNone;
    return number >= 1 && number <= entries_.size() ? entries_[number - 1] : kNone;
  }

  /// Replaces entry `number`, counted from 1; later entries keep what they held.
  void Set(std::size_t number, std::string text) {
    if (number > entries_.size()) {
      entries_.resize(number);
    }
    entries_[number - 1] = std::move(text);
  }

  bool operator==(const UiText&) const = default;

 private:
  std::vector<std::string> entries_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_TEXTS_UI_TEXT_H_
