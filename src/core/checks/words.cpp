#include "core/checks/words.h"

#include <algorithm>

#include "core/checks/letters.h"

namespace vendlingua {
namespace {

constexpr std::size_t kLettersOfAWord = 4;

}  // namespace

DisplayCodes WordsOf(std::span<const DisplayCode> text) {
  DisplayCodes words;
  for (const DisplayCode code : text) {
    if (code != kBlank && code != kPlaceholder) {
      words.push_back(code);
    } else if (!words.empty() && words.back() != kBlank) {
      words.push_back(kBlank);
    }
  }
  words.resize(TrimRight(words).size());
  return words;
}

bool HoldsWords(const Alphabet& alphabet, std::span<const DisplayCode> text) {
  std::size_t letters = 0;
  for (const DisplayCode code : text) {
    letters = IsLetter(DrawnCharacter(alphabet, code)) ? letters + 1 : 0;
    if (letters == kLettersOfAWord) {
      return true;
    }
  }
  return false;
}

bool DrawsNothing(const Alphabet& alphabet, std::span<const DisplayCode> text) {
  return std::all_of(text.begin(), text.end(), [&alphabet](DisplayCode code) {
    return code == kPlaceholder || alphabet.GlyphOf(code).IsEmpty();
  });
}

}  // namespace vendlingua
