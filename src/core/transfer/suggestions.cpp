#include "core/transfer/suggestions.h"

#include <algorithm>
#include <string>
#include <unordered_set>

#include "core/layout/text_layout.h"
#include "core/transfer/text_keys.h"

namespace vendlingua {
namespace {

struct Candidate {
  std::size_t memory;
  TranslationMemory::Similar similar;
};

std::vector<Candidate> CandidatesFor(const DisplayText& origin,
                                     std::span<const TranslationMemory> memories, double least) {
  std::vector<Candidate> candidates;
  for (std::size_t memory = 0; memory < memories.size(); ++memory) {
    for (const auto& similar : memories[memory].SimilarTo(origin, least)) {
      candidates.push_back({memory, similar});
    }
  }
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const auto& a, const auto& b) { return a.similar.ratio > b.similar.ratio; });
  return candidates;
}

}  // namespace

std::vector<Suggestion> SuggestionsFor(const DisplayText& origin, std::size_t width,
                                       std::span<const TranslationMemory> memories,
                                       std::size_t most, double least) {
  std::vector<Suggestion> suggestions;
  std::unordered_set<std::string> known;
  for (const auto& [memory, similar] : CandidatesFor(origin, memories, least)) {
    if (suggestions.size() == most) {
      break;
    }
    const Translated& translated = *similar.translated;
    if (known.insert(WithoutLayout(translated.translation.Cells())).second) {
      suggestions.push_back({memory, translated, similar.ratio,
                             LayOutLike(origin.First(width), translated.translation.Cells())});
    }
  }
  return suggestions;
}

}  // namespace vendlingua
