#ifndef VENDLINGUA_CORE_TRANSFER_TRANSLATION_MEMORY_H_
#define VENDLINGUA_CORE_TRANSFER_TRANSLATION_MEMORY_H_

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/document/display_text.h"

namespace vendlingua {

/// From this ratio on two texts are similar.
inline constexpr double kLeastSimilarity = 0.75;

/// A text and what it was translated into.
struct Translated {
  std::size_t message;  ///< its number where it comes from; the first of several that read so
  DisplayText origin;
  DisplayText translation;
};

/// Translations by the texts that they translate. Messages without words and those whose
/// translation is blank teach nothing and are not in it.
class TranslationMemory {
 public:
  /// Takes the messages of two languages of one file by their numbers.
  TranslationMemory(std::span<const DisplayText> origins,
                    std::span<const DisplayText> translations);

  /// Message `message` is translated otherwise now; a blank translation forgets what it taught.
  void Learn(std::size_t message, const DisplayText& translation);

  /// The translation of this very text; nothing when there is none, or when it was translated in
  /// different ways.
  const Translated* SameText(const DisplayText& origin) const;

  /// The translation of a text that differs in its blanks and in the columns of its placeholders
  /// only; nothing when there is none, or when the translations differ in more than that.
  const Translated* SameWords(const DisplayText& origin) const;

  struct Similar {
    const Translated* translated;
    double ratio;  ///< of the texts without regard to their layout, as SimilarityTo has it
  };
  /// Everything with a ratio of `least` or more, the most similar first, in the order of the file
  /// among equals. What several messages say comes once.
  std::vector<Similar> SimilarTo(const DisplayText& origin, double least = kLeastSimilarity) const;

 private:
  struct Entry {
    Translated translated;
    std::string origin_text;        // without its layout
    std::string translation_key{};  // its words; empty for a translation that teaches nothing

    bool Teaches() const { return !translation_key.empty(); }
  };

  static void Teach(Entry& entry, const DisplayText& translation);
  std::vector<const Entry*> WithWordsOf(const DisplayText& origin) const;

  std::vector<Entry> entries_;  // of all origins with words, by message
  std::unordered_map<std::string, std::vector<std::size_t>> by_words_;  // places in entries_
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_TRANSFER_TRANSLATION_MEMORY_H_
