#include "core/checks/rules/number_missing.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "core/checks/letters.h"

namespace vendlingua {
namespace {

using Signs = std::vector<std::u32string>;

bool IsOfWord(char32_t character) { return IsLetter(character) || IsDigit(character); }

// The katakana display draws its degree sign by the mark that looks like it.
bool IsDegreeSign(char32_t character) { return character == U'°' || character == U'゜'; }

// What a text is drawn as; a degree Celsius in one cell counts as two characters.
std::u32string AsDrawn(const Alphabet& alphabet, std::span<const DisplayCode> codes) {
  std::u32string text;
  for (const DisplayCode code : codes) {
    const char32_t character = DrawnCharacter(alphabet, code);
    if (character == U'℃') {
      text += U"°C";
    } else {
      text += IsDegreeSign(character) ? U'°' : character;
    }
  }
  return text;
}

template <typename Predicate>
Signs RunsOf(std::u32string_view text, Predicate is_of_run) {
  Signs runs;
  for (auto begin = text.begin(); begin != text.end();) {
    begin = std::find_if(begin, text.end(), is_of_run);
    const auto end = std::find_if_not(begin, text.end(), is_of_run);
    if (begin != end) {
      runs.emplace_back(begin, end);
    }
    begin = end;
  }
  return runs;
}

// "E12", "T98", "H2O": capitals and digits, a capital first.
bool IsCode(std::u32string_view word) {
  const auto is_of_code = [](char32_t c) { return IsCapitalLatin(c) || IsDigit(c); };
  return IsCapitalLatin(word.front()) && std::any_of(word.begin(), word.end(), IsDigit) &&
         std::all_of(word.begin(), word.end(), is_of_code);
}

Signs UnitsOf(std::u32string_view text) {
  Signs units;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == U'%') {
      units.emplace_back(U"%");
    } else if (text[i] == U'°' && i + 1 < text.size() && IsCapitalLatin(text[i + 1])) {
      units.emplace_back(text.substr(i, 2));
    }
  }
  return units;
}

void Append(Signs& signs, const Signs& more) {
  signs.insert(signs.end(), more.begin(), more.end());
}

// What must be found again, each as often as it stands there. A code is one sign; of other words
// ("1e2") the numbers count.
Signs SignsToKeep(std::u32string_view text) {
  Signs signs = UnitsOf(text);
  for (const std::u32string& word : RunsOf(text, IsOfWord)) {
    Append(signs, IsCode(word) ? Signs{word} : RunsOf(word, IsDigit));
  }
  return signs;
}

// What can be found: more than must, because a code may stand for its number.
Signs SignsOffered(std::u32string_view text) {
  Signs signs = UnitsOf(text);
  Append(signs, RunsOf(text, IsDigit));
  const Signs words = RunsOf(text, IsOfWord);
  std::copy_if(words.begin(), words.end(), std::back_inserter(signs), IsCode);
  return signs;
}

}  // namespace

bool NumberMissing::IsBrokenBy(const CheckedMessage& message) const {
  if (message.IsBlank()) {
    return false;
  }
  const Alphabet& alphabet = message.basis.alphabet();
  Signs offered = SignsOffered(AsDrawn(alphabet, message.Text()));
  for (const std::u32string& sign : SignsToKeep(AsDrawn(alphabet, message.Origin()))) {
    const auto found = std::find(offered.begin(), offered.end(), sign);
    if (found == offered.end()) {
      return true;
    }
    offered.erase(found);
  }
  return false;
}

}  // namespace vendlingua
