#include "core/exchange/text_encoding.h"

#include <utf8.h>

#include <algorithm>
#include <iterator>

#include "core/document/display_code.h"

namespace vendlingua {
namespace {

using Kind = TableProblem::Kind;

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLittleEndianMark = "\xFF\xFE";
constexpr std::string_view kBigEndianMark = "\xFE\xFF";

// An even number, so that no UTF-16 unit is cut.
constexpr std::size_t kPieceBytes = std::size_t{64} << 10U;

bool IsFirstOfPair(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }

bool IsAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

// Whether the bytes from `start` on, which are malformed, are the start of a character.
bool IsCutCharacter(const char* start, const char* end) {
  try {
    utf8::next(start, end);
  } catch (const utf8::not_enough_room&) {
    return true;
  } catch (const utf8::exception&) {
    return false;
  }
  return false;
}

std::size_t LineOf(std::string_view content, const char* place) {
  return 1 + static_cast<std::size_t>(std::count(content.data(), place, '\n'));
}

// Reads `content`, which is not valid UTF-8: what holds no character of it is Windows-1252.
DetectedEncoding OfMalformedUtf8(std::string_view content) {
  const char* const end = content.data() + content.size();
  const char* const first = utf8::find_invalid(content.data(), end);
  if (IsCutCharacter(first, end) && std::all_of(content.data(), first, IsAscii)) {
    return {.problem = TableProblem{.kind = Kind::kCutUtf8}};
  }
  const char* sound = content.data();
  const char* malformed = first;
  while (std::all_of(sound, malformed, IsAscii)) {
    if (malformed == end) {
      return {TextEncoding::kWindows1252};
    }
    sound = malformed + 1;
    malformed = utf8::find_invalid(sound, end);
  }
  return {.problem = TableProblem{.kind = Kind::kMalformedUtf8, .number = LineOf(content, first)}};
}

}  // namespace

DetectedEncoding DetectEncoding(std::string_view content) {
  if (content.starts_with(kLittleEndianMark)) {
    return {TextEncoding::kUtf16LittleEndian, kLittleEndianMark.size()};
  }
  if (content.starts_with(kBigEndianMark)) {
    return {TextEncoding::kUtf16BigEndian, kBigEndianMark.size()};
  }
  if (content.find('\0') != std::string_view::npos) {
    return {.problem = TableProblem{.kind = Kind::kNotText}};
  }
  const std::size_t mark = content.starts_with(kUtf8Mark) ? kUtf8Mark.size() : 0;
  return utf8::is_valid(content) ? DetectedEncoding{TextEncoding::kUtf8, mark}
                                 : OfMalformedUtf8(content);
}

std::optional<std::string_view> Utf8Pieces::Next() {
  if (rest_.empty() || problem_) {
    return std::nullopt;
  }
  piece_.clear();
  switch (encoding_) {
    case TextEncoding::kUtf8:
      return Take(rest_.size());
    case TextEncoding::kWindows1252:
      TakeWindows1252();
      break;
    case TextEncoding::kUtf16LittleEndian:
    case TextEncoding::kUtf16BigEndian:
      TakeUtf16();
      break;
  }
  return problem_ ? std::nullopt : std::optional<std::string_view>(piece_);
}

std::string_view Utf8Pieces::Take(std::size_t bytes) {
  const std::string_view taken = rest_.substr(0, bytes);
  rest_.remove_prefix(taken.size());
  return taken;
}

void Utf8Pieces::TakeWindows1252() {
  for (const char byte : Take(kPieceBytes)) {
    utf8::append(ToUnicode(static_cast<DisplayCode>(byte)), piece_);
  }
}

void Utf8Pieces::TakeUtf16() {
  const std::size_t low = encoding_ == TextEncoding::kUtf16LittleEndian ? 0 : 1;
  std::u16string units;
  const auto take_unit = [&] {
    const std::string_view bytes = Take(2);
    units += static_cast<char16_t>(static_cast<unsigned char>(bytes[low]) |
                                   static_cast<unsigned char>(bytes[1 - low]) << 8U);
  };
  while (rest_.size() >= 2 && units.size() < kPieceBytes / 2) {
    take_unit();
  }
  if (rest_.size() >= 2 && IsFirstOfPair(units.back())) {
    take_unit();
  }
  const bool is_cut = rest_.size() == 1;
  try {
    utf8::utf16to8(units.begin(), units.end(), std::back_inserter(piece_));
  } catch (const utf8::exception&) {
    problem_ = TableProblem{.kind = Kind::kMalformedUtf16};
  }
  if (is_cut) {
    problem_ = TableProblem{.kind = Kind::kMalformedUtf16};
  } else if (piece_.find('\0') != std::string::npos) {
    problem_ = TableProblem{.kind = Kind::kNotText};
  }
}

}  // namespace vendlingua
