#include "core/transfer/matching.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace vendlingua {
namespace {

using Texts = std::span<const DisplayText>;

std::string KeyOf(const DisplayText& text) { return {text.Cells().begin(), text.Cells().end()}; }

// Where each text stands; nothing for one that stands there more than once.
using Places = std::unordered_map<std::string, std::optional<std::size_t>>;

Places PlacesOf(Texts texts) {
  Places places;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const auto [place, is_first] = places.try_emplace(KeyOf(texts[i]), i);
    if (!is_first) {
      place->second.reset();
    }
  }
  return places;
}

Matches UniqueTexts(Texts now, Texts before) {
  const Places places_now = PlacesOf(now);
  const Places places_before = PlacesOf(before);
  Matches matches;
  for (const DisplayText& text : now) {
    const std::string key = KeyOf(text);
    const auto found = places_before.find(key);
    const bool is_unique = found != places_before.end() && places_now.at(key);
    matches.push_back(is_unique ? found->second : std::nullopt);
  }
  return matches;
}

// A message behind one that is known is the one that stood behind it, if it reads the same.
Matches SpreadDown(Matches matches, Texts now, Texts before) {
  for (std::size_t i = 1; i < now.size(); ++i) {
    const auto& known = matches[i - 1];
    if (!matches[i] && known && *known + 1 < before.size() && before[*known + 1] == now[i]) {
      matches[i] = *known + 1;
    }
  }
  return matches;
}

Matches SpreadUp(Matches matches, Texts now, Texts before) {
  for (std::size_t i = now.size(); i-- > 1;) {
    const auto& known = matches[i];
    if (!matches[i - 1] && known && *known > 0 && before[*known - 1] == now[i - 1]) {
      matches[i - 1] = *known - 1;
    }
  }
  return matches;
}

// For each message how often its text stands there in a row.
std::vector<std::size_t> RunLengths(Texts texts) {
  std::vector<std::size_t> lengths;
  for (std::size_t start = 0; start < texts.size(); start = lengths.size()) {
    std::size_t end = start + 1;
    while (end < texts.size() && texts[end] == texts[start]) {
      ++end;
    }
    lengths.insert(lengths.end(), end - start, end - start);
  }
  return lengths;
}

Matches ByNeighbours(Texts now, Texts before) {
  const Matches unique = UniqueTexts(now, before);
  const Matches from_above = SpreadDown(unique, now, before);
  const Matches from_below = SpreadUp(unique, now, before);
  const std::vector<std::size_t> runs_now = RunLengths(now);
  const std::vector<std::size_t> runs_before = RunLengths(before);
  Matches matches(now.size());
  for (std::size_t i = 0; i < now.size(); ++i) {
    const auto& known = from_above[i] ? from_above[i] : from_below[i];
    // One neighbour alone does not tell which one of a row was added or removed.
    const bool is_certain = from_above[i] && from_below[i]
                                ? from_above[i] == from_below[i]
                                : known && runs_now[i] == runs_before[*known];
    matches[i] = is_certain ? known : std::nullopt;
  }
  return matches;
}

// Adds messages that stand where they stood, as far as no other one is the older message there.
void MatchByNumber(Matches& matches, Texts now, Texts before) {
  std::vector<bool> is_taken(before.size());
  for (const auto& match : matches) {
    if (match) {
      is_taken[*match] = true;
    }
  }
  for (std::size_t i = 0; i < std::min(now.size(), before.size()); ++i) {
    if (!matches[i] && !is_taken[i] && now[i] == before[i]) {
      matches[i] = i;
    }
  }
}

}  // namespace

Matches SameMessages(Texts now, Texts before) {
  Matches matches = ByNeighbours(now, before);
  MatchByNumber(matches, now, before);
  return matches;
}

}  // namespace vendlingua
