#include "core/transfer/translation_memory.h"

#include <algorithm>
#include <unordered_set>

#include "core/transfer/similarity.h"
#include "core/transfer/text_keys.h"

namespace vendlingua {
namespace {

std::string PairKey(const Translated& translated) {
  const auto origin = translated.origin.Cells();
  const auto translation = translated.translation.Cells();
  std::string key(origin.begin(), origin.end());
  key.append(translation.begin(), translation.end());
  return key;
}

}  // namespace

TranslationMemory::TranslationMemory(std::span<const DisplayText> origins,
                                     std::span<const DisplayText> translations) {
  const std::size_t messages = std::min(origins.size(), translations.size());
  for (std::size_t i = 0; i < messages; ++i) {
    const DisplayText& origin = origins[i];
    if (HasWords(origin.Cells())) {
      by_words_[WordsKey(origin.Cells())].push_back(entries_.size());
      entries_.push_back({{i, origin, {}}, WithoutLayout(origin.Cells())});
      Teach(entries_.back(), translations[i]);
    }
  }
}

void TranslationMemory::Learn(std::size_t message, const DisplayText& translation) {
  const auto number = [](const Entry& entry) { return entry.translated.message; };
  const auto entry = std::ranges::lower_bound(entries_, message, {}, number);
  if (entry != entries_.end() && number(*entry) == message) {
    Teach(*entry, translation);
  }
}

void TranslationMemory::Teach(Entry& entry, const DisplayText& translation) {
  entry.translated.translation = translation;
  entry.translation_key = HasWords(translation.Cells()) ? WordsKey(translation.Cells()) : "";
}

std::vector<const TranslationMemory::Entry*> TranslationMemory::WithWordsOf(
    const DisplayText& origin) const {
  std::vector<const Entry*> entries;
  const auto same_words = by_words_.find(WordsKey(origin.Cells()));
  if (same_words != by_words_.end()) {
    for (const std::size_t place : same_words->second) {
      if (entries_[place].Teaches()) {
        entries.push_back(&entries_[place]);
      }
    }
  }
  return entries;
}

const Translated* TranslationMemory::SameText(const DisplayText& origin) const {
  const Translated* found = nullptr;
  for (const Entry* entry : WithWordsOf(origin)) {
    const Translated& translated = entry->translated;
    if (translated.origin != origin) {
      continue;
    }
    if (found != nullptr && found->translation != translated.translation) {
      return nullptr;
    }
    found = found == nullptr ? &translated : found;
  }
  return found;
}

const Translated* TranslationMemory::SameWords(const DisplayText& origin) const {
  const std::vector<const Entry*> entries = WithWordsOf(origin);
  const bool agree = std::ranges::all_of(entries, [&](const Entry* entry) {
    return entry->translation_key == entries.front()->translation_key;
  });
  return agree && !entries.empty() ? &entries.front()->translated : nullptr;
}

std::vector<TranslationMemory::Similar> TranslationMemory::SimilarTo(const DisplayText& origin,
                                                                     double least) const {
  const SimilarityTo similarity(WithoutLayout(origin.Cells()));
  std::vector<Similar> similar;
  std::unordered_set<std::string> known;
  for (const Entry& entry : entries_) {
    if (!entry.Teaches()) {
      continue;
    }
    const double ratio = similarity.Ratio(entry.origin_text);
    if (ratio >= least && known.insert(PairKey(entry.translated)).second) {
      similar.push_back({&entry.translated, ratio});
    }
  }
  std::stable_sort(similar.begin(), similar.end(),
                   [](const Similar& a, const Similar& b) { return a.ratio > b.ratio; });
  return similar;
}

}  // namespace vendlingua
