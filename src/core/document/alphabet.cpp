#include "core/document/alphabet.h"

#include <utf8.h>

#include <algorithm>

namespace vendlingua {
namespace {

constexpr std::size_t kCyrillicDisplay = 1;
constexpr std::size_t kKatakanaDisplay = 2;
constexpr char32_t kPrivateStart = 0xF000;

// Letters that look the same, which the Cyrillic display draws once.
constexpr std::u32string_view kCyrillic = U"АВЕКМНОРСТХаеорсух";
constexpr std::u32string_view kLatin = U"ABEKMHOPCTXaeopcyx";

constexpr char32_t kFirstHalfWidth = 0xFF61;
constexpr DisplayCode kFirstKatakana = 161;
constexpr DisplayCode kLastKatakana = 223;

struct MarkedKatakana {
  char32_t mark;
  std::u32string_view letters;
  std::u32string_view plain;
};
constexpr std::array<MarkedKatakana, 2> kMarkedKatakana = {{
    {U'゛', U"ヴガギグゲゴザジズゼゾダヂヅデドバビブベボ",
     U"ウカキクケコサシスセソタチツテトハヒフヘホ"},
    {U'゜', U"パピプペポ", U"ハヒフヘホ"},
}};

bool IsAsciiCode(std::size_t code) { return code < 0x80; }

// The letter of `from` at the place where `character` stands in `to`; 0 when it is not there.
char32_t Counterpart(char32_t character, std::u32string_view to, std::u32string_view from) {
  const std::size_t place = to.find(character);
  return place == std::u32string_view::npos ? 0 : from[place];
}

// A voiced katakana as letter and mark; anything else by itself.
std::u32string Decomposed(char32_t character) {
  for (const MarkedKatakana& marked : kMarkedKatakana) {
    if (const char32_t plain = Counterpart(character, marked.letters, marked.plain)) {
      return {plain, marked.mark};
    }
  }
  return {character};
}

bool IsLatinLetter(char32_t character) {
  return (character >= U'A' && character <= U'Z') || (character >= U'a' && character <= U'z');
}

bool IsCyrillic(char32_t character) { return character >= 0x400 && character <= 0x4FF; }

bool IsLetterOrDigit(char32_t character) {
  return IsLatinLetter(character) || IsCyrillic(character) ||
         (character >= U'0' && character <= U'9');
}

// Writes a word in Cyrillic letters, if it has one in each place.
void MakeCyrillic(std::span<char32_t> word) {
  const bool can_be = std::all_of(word.begin(), word.end(), [](char32_t character) {
    return IsCyrillic(character) || Counterpart(character, kLatin, kCyrillic) != 0;
  });
  if (can_be) {
    for (char32_t& character : word) {
      const char32_t cyrillic = Counterpart(character, kLatin, kCyrillic);
      character = cyrillic != 0 ? cyrillic : character;
    }
  }
}

// In a Cyrillic text the letters drawn for both alphabets are Cyrillic ones: "Привет" is one word.
// Words that have Latin letters or digits stay ("E08").
void MakeWordsCyrillic(std::u32string& text) {
  if (std::none_of(text.begin(), text.end(), IsCyrillic)) {
    return;
  }
  for (auto begin = text.begin(); begin != text.end();) {
    begin = std::find_if(begin, text.end(), IsLetterOrDigit);
    const auto end = std::find_if_not(begin, text.end(), IsLetterOrDigit);
    MakeCyrillic({begin, end});
    begin = end;
  }
}

}  // namespace

const Alphabet& Alphabet::Of(std::size_t display) {
  static const std::array<Alphabet, kDisplayTypes> kAlphabets = {Alphabet(0), Alphabet(1),
                                                                 Alphabet(2), Alphabet(3)};
  return kAlphabets.at(display < kDisplayTypes ? display : 0);
}

Alphabet::Alphabet(std::size_t display)
    : glyphs_(kGlyphTables.at(display)), is_cyrillic_(display == kCyrillicDisplay) {
  AddPictures();
  for (std::size_t i = 0; is_cyrillic_ && i < kCyrillic.size(); ++i) {
    codes_.try_emplace(kCyrillic[i], static_cast<DisplayCode>(kLatin[i]));
  }
  if (display == kKatakanaDisplay) {
    for (DisplayCode code = kFirstKatakana; code <= kLastKatakana; ++code) {
      codes_.try_emplace(kFirstHalfWidth + (code - kFirstKatakana), code);
    }
  }
}

void Alphabet::AddPictures() {
  // Of two codes with one picture ASCII's is meant, else the higher one: there the character
  // generator departs from Windows-1252 on purpose, as with the degree sign.
  for (std::size_t code = 0; code < glyphs_.size(); ++code) {
    const char32_t character = glyphs_[code].character;
    const auto found = codes_.find(character);
    if (character != 0 && (found == codes_.end() || !IsAsciiCode(found->second))) {
      codes_[character] = static_cast<DisplayCode>(code);
    }
  }
  for (std::size_t code = 0; code < glyphs_.size(); ++code) {
    const auto stand_in = static_cast<char32_t>(kPrivateStart + code);
    const auto own = codes_.find(glyphs_[code].character);
    characters_.at(code) = own != codes_.end() && own->second == code ? own->first : stand_in;
    codes_.emplace(stand_in, static_cast<DisplayCode>(code));
  }
}

std::optional<DisplayCode> Alphabet::CodeOf(char32_t character) const {
  const auto found = codes_.find(character);
  return found != codes_.end() ? found->second : ToDisplayCode(character);
}

std::string Alphabet::TextOf(std::span<const DisplayCode> codes) const {
  std::u32string text;
  for (const DisplayCode code : codes) {
    text += CharacterOf(code);
  }
  if (is_cyrillic_) {
    MakeWordsCyrillic(text);
  }
  return utf8::utf32to8(text);
}

DrawnText Alphabet::CodesOf(std::string_view utf8) const {
  DrawnText result;
  const auto refuse = [&unknown = result.unknown](std::string piece) {
    if (std::find(unknown.begin(), unknown.end(), piece) == unknown.end()) {
      unknown.push_back(std::move(piece));
    }
  };
  const char* next = utf8.data();
  const char* const end = next + utf8.size();
  while (next != end) {
    const char* const start = next;
    char32_t character = 0;
    try {
      character = utf8::next(next, end);
    } catch (const utf8::exception&) {
      next = start + 1;
      refuse({start, next});
      continue;
    }
    const auto own = CodeOf(character);
    for (const char32_t part : own ? std::u32string{character} : Decomposed(character)) {
      if (const auto code = CodeOf(part)) {
        result.codes.push_back(*code);
      } else {
        refuse({start, next});
      }
    }
  }
  return result;
}

}  // namespace vendlingua
