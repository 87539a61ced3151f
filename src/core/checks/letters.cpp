#include "core/checks/letters.h"

#include <string_view>

namespace vendlingua {
namespace {

constexpr std::u32string_view kCapitalsBeyondLatin1 = U"ŠŒŽŸ";
constexpr std::u32string_view kSmallBeyondLatin1 = U"šœž";

bool IsBetween(char32_t character, char32_t first, char32_t last) {
  return character >= first && character <= last;
}

bool IsOneOf(char32_t character, std::u32string_view characters) {
  return characters.find(character) != std::u32string_view::npos;
}

}  // namespace

bool IsDigit(char32_t character) { return IsBetween(character, U'0', U'9'); }

bool IsSmallLatin(char32_t character) {
  return IsBetween(character, U'a', U'z') ||
         (IsBetween(character, U'ß', U'ÿ') && character != U'÷') ||
         IsOneOf(character, kSmallBeyondLatin1);
}

bool IsCapitalLatin(char32_t character) {
  return IsBetween(character, U'A', U'Z') ||
         (IsBetween(character, U'À', U'Þ') && character != U'×') ||
         IsOneOf(character, kCapitalsBeyondLatin1);
}

bool IsLetter(char32_t character) {
  return IsSmallLatin(character) || IsCapitalLatin(character) ||
         IsBetween(character, U'Ѐ', U'ӿ') ||  // Cyrillic
         IsBetween(character, U'א', U'ת') ||  // Hebrew
         IsBetween(character, U'゛', U'ヿ');  // katakana and their marks
}

char32_t DrawnCharacter(const Alphabet& alphabet, DisplayCode code) {
  return code == kPlaceholder ? 0 : alphabet.GlyphOf(code).character;
}

}  // namespace vendlingua
