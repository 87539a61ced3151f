#include "core/checks/meant_glyphs.h"

#include <algorithm>
#include <string_view>

#include "core/checks/letters.h"

namespace vendlingua {
namespace {

using Cells = std::span<const DisplayCode>;

// Shorter words prove nothing: "n°", "T°".
constexpr std::size_t kLettersThatProve = 3;

constexpr DisplayCode kWindowsDegreeSign = 0xB0;

// Pictures that may well stand before a Latin word: "«slave»", "→menu".
constexpr std::u32string_view kBeforeWords = U"«“„№§←↑→↓";

// Small Cyrillic letters that a Cyrillic display draws by the code of a Latin one.
constexpr std::u32string_view kDrawnAsLatin = U"аеорсух";

bool StandsForCyrillic(const Alphabet& alphabet, DisplayCode code) {
  return std::any_of(kDrawnAsLatin.begin(), kDrawnAsLatin.end(),
                     [&](char32_t letter) { return alphabet.CodeOf(letter) == code; });
}

// Reads a text in the characters that the display draws and in those of Windows-1252.
class TwoReadings {
 public:
  TwoReadings(const Alphabet& alphabet, Cells text) : alphabet_(alphabet), text_(text) {}

  char32_t Drawn(std::size_t cell) const {
    return cell < text_.size() ? DrawnCharacter(alphabet_, text_[cell]) : 0;
  }
  char32_t Windows(std::size_t cell) const {
    return cell < text_.size() && text_[cell] != kPlaceholder ? ToUnicode(text_[cell]) : 0;
  }
  bool Differ(std::size_t cell) const { return Drawn(cell) != Windows(cell); }

  bool IsOfWord(std::size_t cell) const { return IsLetter(Drawn(cell)) || IsLetter(Windows(cell)); }

  // A letter that is Latin in both readings and in no Cyrillic word.
  bool IsSmallLatinForSure(std::size_t cell) const {
    return !Differ(cell) && IsSmallLatin(Drawn(cell)) && !StandsForCyrillic(alphabet_, text_[cell]);
  }

  // A letter of the display's own script where Windows-1252 has none.
  bool IsOfTheDisplayForSure(std::size_t cell) const {
    return IsLetter(Drawn(cell)) && !IsLetter(Windows(cell));
  }

 private:
  const Alphabet& alphabet_;
  Cells text_;
};

// The cells of a word; `behind` is the one behind its last.
struct Word {
  std::size_t first;
  std::size_t behind;
};

bool IsMeantAsLatin(const TwoReadings& text, const Word& word) {
  bool has_latin = false;
  for (std::size_t cell = word.first; cell < word.behind; ++cell) {
    if (text.IsOfTheDisplayForSure(cell)) {
      return false;
    }
    has_latin = has_latin || text.IsSmallLatinForSure(cell);
  }
  return has_latin && word.behind - word.first >= kLettersThatProve;
}

// Whether the Windows-1252 letter of the cell fits into a Latin word: a small one that no capital
// follows, as in "TempßC", or a capital at its beginning.
bool FitsIntoLatin(const TwoReadings& text, const Word& word, std::size_t cell) {
  const char32_t letter = text.Windows(cell);
  const char32_t next = cell + 1 < word.behind ? text.Windows(cell + 1) : 0;
  if (IsSmallLatin(letter)) {
    return !IsCapitalLatin(next);
  }
  return IsCapitalLatin(letter) && cell == word.first && IsSmallLatin(next) &&
         kBeforeWords.find(text.Drawn(cell)) == std::u32string_view::npos;
}

bool WordIsDrawnOtherwise(const TwoReadings& text, const Word& word) {
  if (!IsMeantAsLatin(text, word)) {
    return false;
  }
  for (std::size_t cell = word.first; cell < word.behind; ++cell) {
    if (text.Differ(cell) && FitsIntoLatin(text, word, cell)) {
      return true;
    }
  }
  return false;
}

bool AnyWordIsDrawnOtherwise(const TwoReadings& text, std::size_t cells) {
  for (std::size_t cell = 0; cell < cells; ++cell) {
    Word word{cell, cell};
    while (text.IsOfWord(word.behind)) {
      ++word.behind;
    }
    if (WordIsDrawnOtherwise(text, word)) {
      return true;
    }
    cell = word.behind;
  }
  return false;
}

// "60 °C" by the code that Windows-1252 has for the sign.
bool TemperatureIsDrawnOtherwise(const TwoReadings& text, Cells cells) {
  for (std::size_t cell = 1; cell < cells.size(); ++cell) {
    if (cells[cell] != kWindowsDegreeSign || !text.Differ(cell)) {
      continue;
    }
    const std::size_t before = cells[cell - 1] == kBlank && cell > 1 ? cell - 2 : cell - 1;
    const bool behind_number = IsDigit(text.Drawn(before)) || cells[before] == kPlaceholder;
    const char32_t unit = text.Drawn(cell + 1);
    if (behind_number && (unit == U'C' || unit == U'F') && !text.IsOfWord(cell + 2)) {
      return true;
    }
  }
  return false;
}

}  // namespace

bool DrawsAnotherGlyphThanMeant(const Alphabet& alphabet, Cells text) {
  const TwoReadings readings(alphabet, text);
  return AnyWordIsDrawnOtherwise(readings, text.size()) ||
         TemperatureIsDrawnOtherwise(readings, text);
}

}  // namespace vendlingua
