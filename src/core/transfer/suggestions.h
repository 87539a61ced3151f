#ifndef VENDLINGUA_CORE_TRANSFER_SUGGESTIONS_H_
#define VENDLINGUA_CORE_TRANSFER_SUGGESTIONS_H_

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "core/transfer/translation_memory.h"

namespace vendlingua {

/// A translation of a same or similar text, for a person to judge.
struct Suggestion {
  std::size_t memory;  ///< which of the memories it comes from
  Translated translated;
  double ratio;  ///< of its origin and the text that is to be translated, 1 for the same words
  /// The translation laid out for that text; nothing when it does not fit.
  std::optional<DisplayCodes> laid_out;
};

/// At most `most` suggestions for the text `origin` of `width` cells, the most similar first, in
/// the order of the memories among equals. Each translation comes once.
std::vector<Suggestion> SuggestionsFor(const DisplayText& origin, std::size_t width,
                                       std::span<const TranslationMemory> memories,
                                       std::size_t most, double least = kLeastSimilarity);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_TRANSFER_SUGGESTIONS_H_
