#include "core/exchange/xml_text.h"

#include <utf8.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <system_error>
#include <utility>

namespace vendlingua {
namespace {

// More than any reference that stands for a character: "&#x0010FFFF;".
constexpr std::size_t kLongestReference = 12;

constexpr std::array<std::pair<std::string_view, char32_t>, 5> kNamed = {
    {{"amp", U'&'}, {"lt", U'<'}, {"gt", U'>'}, {"quot", U'"'}, {"apos", U'\''}}};

bool IsCharacter(char32_t code) {
  return code != 0 && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
}

// The character that `name`, what stands between "&" and ";", is a reference to.
std::optional<char32_t> Referenced(std::string_view name) {
  const auto* const named = std::find_if(kNamed.begin(), kNamed.end(),
                                         [name](const auto& known) { return known.first == name; });
  if (named != kNamed.end()) {
    return named->second;
  }
  if (!name.starts_with('#')) {
    return std::nullopt;
  }
  const bool is_hexadecimal = name.starts_with("#x");
  name.remove_prefix(is_hexadecimal ? 2 : 1);
  std::uint32_t code = 0;
  const char* const end = name.data() + name.size();
  const auto parsed = std::from_chars(name.data(), end, code, is_hexadecimal ? 16 : 10);
  const bool is_sound = parsed.ec == std::errc() && parsed.ptr == end && IsCharacter(code);
  return is_sound ? std::optional<char32_t>(code) : std::nullopt;
}

}  // namespace

XmlText Unescaped(std::string_view raw) {
  XmlText result;
  while (!raw.empty()) {
    const std::size_t start = std::min(raw.find('&'), raw.size());
    result.text += raw.substr(0, start);
    raw.remove_prefix(start);
    if (raw.empty()) {
      break;
    }
    const std::string_view reference =
        raw.substr(0, std::min(raw.find(';'), kLongestReference) + 1);
    const auto character = reference.ends_with(';')
                               ? Referenced(reference.substr(1, reference.size() - 2))
                               : std::nullopt;
    if (!character) {
      result.unknown = reference;
      return result;
    }
    utf8::append(*character, result.text);
    raw.remove_prefix(reference.size());
  }
  return result;
}

}  // namespace vendlingua
