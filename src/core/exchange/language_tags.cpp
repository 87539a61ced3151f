#include "core/exchange/language_tags.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/document/display_code.h"

namespace vendlingua {
namespace {

// The names that languages give themselves, as displays write them, and their Italian and English
// ones.
constexpr std::array<std::pair<std::string_view, std::string_view>, 76> kNames = {{
    {"ITALIANO", "it"},   {"ITALIAN", "it"},    {"ENGLISH", "en"},     {"INGLESE", "en"},
    {"DEUTSCH", "de"},    {"TEDESCO", "de"},    {"GERMAN", "de"},      {"FRANCAIS", "fr"},
    {"FRANÇAIS", "fr"},   {"FRANCESE", "fr"},   {"FRENCH", "fr"},      {"ESPANOL", "es"},
    {"ESPAÑOL", "es"},    {"SPAGNOLO", "es"},   {"SPANISH", "es"},     {"CASTELLANO", "es"},
    {"PORTUGUES", "pt"},  {"PORTUGUÊS", "pt"},  {"PORTOGHESE", "pt"},  {"PORTUGUESE", "pt"},
    {"NEDERLANDS", "nl"}, {"OLANDESE", "nl"},   {"DUTCH", "nl"},       {"DANSK", "da"},
    {"DANESE", "da"},     {"DANISH", "da"},     {"SVENSKA", "sv"},     {"SVEDESE", "sv"},
    {"SWEDISH", "sv"},    {"NORSK", "nb"},      {"NORVEGESE", "nb"},   {"NORWEGIAN", "nb"},
    {"SUOMI", "fi"},      {"FINLANDESE", "fi"}, {"FINNISH", "fi"},     {"POLSKI", "pl"},
    {"POLACCO", "pl"},    {"POLISH", "pl"},     {"CESKY", "cs"},       {"CESTINA", "cs"},
    {"CECO", "cs"},       {"CZECH", "cs"},      {"SLOVENSKY", "sk"},   {"SLOVENCINA", "sk"},
    {"SLOVACCO", "sk"},   {"SLOVAK", "sk"},     {"SLOVENSCINA", "sl"}, {"SLOVENO", "sl"},
    {"SLOVENE", "sl"},    {"HRVATSKI", "hr"},   {"CROATO", "hr"},      {"CROATIAN", "hr"},
    {"MAGYAR", "hu"},     {"UNGHERESE", "hu"},  {"HUNGARIAN", "hu"},   {"ROMANA", "ro"},
    {"RUMENO", "ro"},     {"ROMANIAN", "ro"},   {"TURKCE", "tr"},      {"TURCO", "tr"},
    {"TURKISH", "tr"},    {"ELLINIKA", "el"},   {"GRECO", "el"},       {"GREEK", "el"},
    {"RUSSKIJ", "ru"},    {"RUSSO", "ru"},      {"RUSSIAN", "ru"},     {"BALGARSKI", "bg"},
    {"BULGARO", "bg"},    {"BULGARIAN", "bg"},  {"EBRAICO", "he"},     {"HEBREW", "he"},
    {"GIAPPONESE", "ja"}, {"JAPANESE", "ja"},   {"CATALA", "ca"},      {"CATALÀ", "ca"},
}};

std::string InCapitals(std::string_view name) {
  DisplayCodes codes = ToDisplayCodes(name).codes;
  std::transform(codes.begin(), codes.end(), codes.begin(), ToUpper);
  return ToUtf8(Trim(codes));
}

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::string LanguageTagOf(std::string_view name) {
  const auto* const found = std::find_if(
      kNames.begin(), kNames.end(),
      [capitals = InCapitals(name)](const auto& known) { return known.first == capitals; });
  return found == kNames.end() ? std::string() : std::string(found->second);
}

std::vector<std::string> LanguageTags(const MessageSet& set) {
  std::vector<std::string> tags = {"it"};
  for (std::size_t language = 1; language < set.language_names.size(); ++language) {
    std::string tag = LanguageTagOf(set.language_names[language]);
    if (tag.empty() || std::find(tags.begin() + 1, tags.end(), tag) != tags.end()) {
      tag += (tag.empty() ? "x-lang" : "-x-lang") + std::to_string(language);
    }
    tags.push_back(tag);
  }
  return tags;
}

bool IsLanguageTag(std::string_view tag) {
  constexpr std::size_t kLongestPart = 8;
  std::size_t length = 0;
  bool is_first_part = true;
  for (const char c : tag) {
    if (c == '-' && length > 0) {
      length = 0;
      is_first_part = false;
    } else if (!(IsLetter(c) || (IsDigit(c) && !is_first_part)) || ++length > kLongestPart) {
      return false;
    }
  }
  return length > 0;
}

}  // namespace vendlingua
