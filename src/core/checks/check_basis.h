#ifndef VENDLINGUA_CORE_CHECKS_CHECK_BASIS_H_
#define VENDLINGUA_CORE_CHECKS_CHECK_BASIS_H_

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "core/checks/language_texts.h"
#include "core/document/alphabet.h"
#include "core/document/message_set.h"

namespace vendlingua {

/// What a language is called.
struct LanguageName {
  std::string listed;  ///< in the file's list of languages, in capitals, UTF-8
  DisplayCodes shown;  ///< by its name message, without the blanks at both ends
};

/// The language that the checks take for the origin if nobody names one: language 1 of a ".MES"
/// file, where an import puts the firmware's own language; the built-in table for a ".MSX" file,
/// whose languages stand in any order.
int UsualOrigin(const MessageSet& set);

/// What all languages of a file are checked against. It holds what it needs, so that it can stay
/// while the file's texts are edited; a message that is added needs a new one.
class CheckBasis {
 public:
  /// `languages` are those of the file of `set` (ReadLanguages); texts are read in `alphabet`.
  CheckBasis(const MessageSet& set, const std::vector<LanguageTexts>& languages, int origin,
             const Alphabet& alphabet);

  const Alphabet& alphabet() const { return alphabet_; }
  int origin_language() const { return origin_language_; }
  /// The cells of a message that are checked: all of them, at most 40.
  std::size_t width() const { return width_; }
  std::size_t MessageCount() const { return origin_.size(); }

  const DisplayText& Origin(std::size_t message) const { return origin_.at(message); }

  /// Whether the board fills the cell: the reference, or the built-in table for a ".MSX" file, has
  /// a placeholder there.
  bool BoardFills(std::size_t message, std::size_t cell) const {
    return board_.at(message)[cell] == kPlaceholder;
  }

  /// A text with the placeholders that the board fills. A ".MSX" file holds blanks in their place.
  DisplayText WithPlaceholders(std::size_t message, const DisplayText& text) const;
  /// The other way round: a text as the file holds it.
  DisplayCodes AsStored(std::size_t message, DisplayCodes text) const;

  /// The first message with the same words in the origin, which may be `message` itself.
  std::size_t FirstOfSameWords(std::size_t message) const { return first_of_same_words_[message]; }

  /// The languages of the file by their numbers. A new language has none among them.
  const std::vector<LanguageName>& names() const { return names_; }
  /// The name of a language in the list of the file; nothing for one that is not in the file.
  const std::string* ListedName(int language) const;
  /// The message that shows a language's own name, if the file has it.
  std::optional<std::size_t> name_message() const { return name_message_; }

  /// Whether the language is the origin, or another copy of it by its name.
  bool IsOrigin(int language) const;

 private:
  void TakeNames(const MessageSet& set, const std::vector<LanguageTexts>& languages);
  void FindSameWords();

  const Alphabet& alphabet_;
  std::size_t width_;
  bool stores_blanks_for_placeholders_;
  int origin_language_;
  MessageTexts board_;
  MessageTexts origin_;
  std::vector<std::size_t> first_of_same_words_;
  std::vector<LanguageName> names_;
  std::optional<std::size_t> name_message_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_CHECK_BASIS_H_
