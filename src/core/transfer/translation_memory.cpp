#include "core/transfer/translation_memory.h"

#include <algorithm>
#include <unordered_set>

#include "core/transfer/similarity.h"
#include "core/transfer/text_keys.h"

namespace vendlingua {
namespace {

std::string PairKey(const DisplayText& origin, const DisplayText& translation) {
  std::string key(origin.Cells().begin(), origin.Cells().end());
  key.append(translation.Cells().begin(), translation.Cells().end());
  return key;
}

}  // namespace

TranslationMemory::TranslationMemory(std::span<const DisplayText> origins,
                                     std::span<const DisplayText> translations) {
  std::unordered_set<std::string> known;
  const std::size_t messages = std::min(origins.size(), translations.size());
  for (std::size_t i = 0; i < messages; ++i) {
    const DisplayText& origin = origins[i];
    const DisplayText& translation = translations[i];
    if (HasWords(origin.Cells()) && HasWords(translation.Cells()) &&
        known.insert(PairKey(origin, translation)).second) {
      by_words_[WordsKey(origin.Cells())].push_back(entries_.size());
      entries_.push_back(
          {{i, origin, translation}, WithoutLayout(origin.Cells()), WordsKey(translation.Cells())});
    }
  }
}

const Translated* TranslationMemory::SameText(const DisplayText& origin) const {
  const Translated* found = nullptr;
  const auto same_words = by_words_.find(WordsKey(origin.Cells()));
  if (same_words == by_words_.end()) {
    return nullptr;
  }
  for (const std::size_t place : same_words->second) {
    const Translated& translated = entries_[place].translated;
    if (translated.origin == origin) {
      if (found != nullptr) {
        return nullptr;
      }
      found = &translated;
    }
  }
  return found;
}

const Translated* TranslationMemory::SameWords(const DisplayText& origin) const {
  const auto same_words = by_words_.find(WordsKey(origin.Cells()));
  if (same_words == by_words_.end()) {
    return nullptr;
  }
  const std::vector<std::size_t>& places = same_words->second;
  const Entry& first = entries_[places.front()];
  const bool agree = std::all_of(places.begin(), places.end(), [&](std::size_t place) {
    return entries_[place].translation_key == first.translation_key;
  });
  return agree ? &first.translated : nullptr;
}

std::vector<TranslationMemory::Similar> TranslationMemory::SimilarTo(const DisplayText& origin,
                                                                     double least) const {
  const SimilarityTo similarity(WithoutLayout(origin.Cells()));
  std::vector<Similar> similar;
  for (const Entry& entry : entries_) {
    const double ratio = similarity.Ratio(entry.origin_text);
    if (ratio >= least) {
      similar.push_back({&entry.translated, ratio});
    }
  }
  std::stable_sort(similar.begin(), similar.end(),
                   [](const Similar& a, const Similar& b) { return a.ratio > b.ratio; });
  return similar;
}

}  // namespace vendlingua
