#include "core/document/display_code.h"

#include <utf8.h>

#include <algorithm>
#include <array>

namespace vendlingua {
namespace {

constexpr DisplayCode kFirstWindowsCode = 0x80;
constexpr DisplayCode kLastWindowsCode = 0x9F;

// Codes 0x80 to 0x9F, where Windows-1252 differs from the first 256 Unicode characters.
constexpr std::array<char32_t, 32> kWindowsCharacters = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

char32_t ToUnicode(DisplayCode code) {
  if (code >= kFirstWindowsCode && code <= kLastWindowsCode) {
    return kWindowsCharacters[static_cast<std::size_t>(code - kFirstWindowsCode)];
  }
  return code;
}

std::optional<DisplayCode> ToDisplayCode(char32_t character) {
  const auto* found = std::find(kWindowsCharacters.begin(), kWindowsCharacters.end(), character);
  if (found != kWindowsCharacters.end()) {
    return static_cast<DisplayCode>(kFirstWindowsCode + (found - kWindowsCharacters.begin()));
  }
  if (character < kFirstWindowsCode || (character > kLastWindowsCode && character <= 0xFF)) {
    return static_cast<DisplayCode>(character);
  }
  return std::nullopt;
}

std::string ToUtf8(std::span<const DisplayCode> codes) {
  std::string text;
  text.reserve(codes.size());
  for (const DisplayCode code : codes) {
    if (code < kFirstWindowsCode) {
      text.push_back(static_cast<char>(code));
    } else {
      utf8::append(ToUnicode(code), text);
    }
  }
  return text;
}

CodesFromUtf8 ToDisplayCodes(std::string_view text) {
  CodesFromUtf8 result;
  const char* next = text.data();
  const char* const end = next + text.size();
  while (next != end) {
    const char* const start = next;
    std::optional<DisplayCode> code;
    try {
      code = ToDisplayCode(utf8::next(next, end));
    } catch (const utf8::exception&) {
      next = start + 1;
    }
    if (!code) {
      result.unknown = std::string(start, next);
      return result;
    }
    result.codes.push_back(*code);
  }
  return result;
}

DisplayCodes CodesFromBytes(std::string_view bytes) {
  DisplayCodes codes(bytes.size());
  std::transform(bytes.begin(), bytes.end(), codes.begin(),
                 [](char byte) { return static_cast<DisplayCode>(byte); });
  return codes;
}

std::string BytesFromCodes(std::span<const DisplayCode> codes) {
  return {codes.begin(), codes.end()};
}

DisplayCode ToUpper(DisplayCode code) {
  const bool ascii_letter = code >= 'a' && code <= 'z';
  const bool accented_letter = code >= 0xE0 && code <= 0xFE && code != 0xF7;
  if (ascii_letter || accented_letter) {
    return static_cast<DisplayCode>(code - 0x20);
  }
  switch (code) {
    case 0x9A:  // š
    case 0x9C:  // œ
    case 0x9E:  // ž
      return static_cast<DisplayCode>(code - 0x10);
    case 0xFF:  // ÿ
      return 0x9F;
    default:
      return code;
  }
}

std::span<const DisplayCode> TrimRight(std::span<const DisplayCode> codes) {
  while (!codes.empty() && codes.back() == kBlank) {
    codes = codes.first(codes.size() - 1);
  }
  return codes;
}

std::span<const DisplayCode> Trim(std::span<const DisplayCode> codes) {
  codes = TrimRight(codes);
  while (!codes.empty() && codes.front() == kBlank) {
    codes = codes.subspan(1);
  }
  return codes;
}

DisplayCodes FitTo(std::span<const DisplayCode> codes, std::size_t width) {
  DisplayCodes cells(codes.begin(),
                     codes.begin() + static_cast<std::ptrdiff_t>(std::min(codes.size(), width)));
  cells.resize(width, kBlank);
  return cells;
}

}  // namespace vendlingua
