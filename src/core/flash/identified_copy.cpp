#include "core/flash/identified_copy.h"

#include <utf8.h>

#include <algorithm>
#include <iterator>

#include "core/document/display_code.h"
#include "core/formats/copy_header.h"
#include "core/formats/hex.h"
#include "core/texts/ascii_case.h"

namespace vendlingua {
namespace {

bool IsDecimalDigit(DisplayCode code) { return code >= '0' && code <= '9'; }

// A byte that is no UTF-8 counts as a character, too.
std::u32string Characters(std::string_view utf8) {
  std::string valid;
  utf8::replace_invalid(utf8.begin(), utf8.end(), std::back_inserter(valid));
  std::u32string characters;
  utf8::utf8to32(valid.begin(), valid.end(), std::back_inserter(characters));
  return characters;
}

// Model and version of a base name, the version in capitals; nothing when they are not there or
// have other characters.
std::optional<DisplayCodes> Identification(std::string_view base_name) {
  constexpr std::size_t kStart = 2;
  constexpr std::size_t kLength = 6;
  constexpr std::size_t kModelDigits = 4;
  const std::u32string characters = Characters(base_name);
  DisplayCodes codes;
  for (std::size_t i = kStart; i < std::min(kStart + kLength, characters.size()); ++i) {
    const auto code = ToDisplayCode(characters[i]);
    const bool is_model = codes.size() < kModelDigits;
    if (!code || (is_model && !IsDecimalDigit(*code))) {
      return std::nullopt;
    }
    codes.push_back(is_model ? *code : ToUpper(*code));
  }
  return codes.size() == kLength ? std::optional(codes) : std::nullopt;
}

// The version of a model 0267 board that is loaded is the one before the file's.
void StepVersionBack(DisplayCodes& identification) {
  constexpr std::string_view kSteppedBack = "0267A";
  constexpr std::string_view kCycle = "ABCD";
  if (BytesFromCodes(identification).starts_with(kSteppedBack)) {
    const std::size_t place = kCycle.find(static_cast<char>(identification.back()));
    if (place != std::string_view::npos) {
      identification.back() =
          static_cast<DisplayCode>(kCycle[(place + kCycle.size() - 1) % kCycle.size()]);
    }
  }
}

}  // namespace

std::string_view IdentificationDigits(std::string_view first_record) {
  for (std::size_t i = 0; i < first_record.size(); i += 2) {
    if (first_record.substr(i, 2) == "50") {
      return Columns(first_record, i + 3, kIdentificationDigits);
    }
  }
  return {};
}

std::string HeaderFromFirstRecord(std::string_view first_record) {
  const std::string_view identification = IdentificationDigits(first_record);
  return CopyHeader(identification, Hex(CopyHeaderChecksum(identification)));
}

std::optional<std::string> HeaderFromBaseName(std::string_view base_name) {
  auto identification = Identification(base_name);
  if (!identification) {
    return std::nullopt;
  }
  StepVersionBack(*identification);
  std::string digits;
  for (const DisplayCode code : *identification) {
    AppendHexByte(digits, code);
  }
  return CopyHeader(digits, HexField(CopyHeaderChecksum(digits), 2));
}

std::optional<CopyName> CopyNameFor(const std::filesystem::path& flash_file) {
  // The name of a file, not a text for people: its bytes have to stay.
  const std::u8string bytes = flash_file.u8string();
  const std::string path(bytes.begin(), bytes.end());
  const std::string upper_path = UpperCase(path);
  std::string extension = ".MSX";
  std::size_t dot = upper_path.find(".MHX");
  if (dot == std::string::npos) {
    extension = ".HSX";
    dot = upper_path.find(".HEX");
  }
  if (dot == std::string::npos) {
    return std::nullopt;
  }
  const std::string before_dot = path.substr(0, dot);
  const std::size_t separator = before_dot.find_last_of("/\\");
  const std::size_t start = separator == std::string::npos ? 0 : separator + 1;
  return CopyName{before_dot.substr(start), extension};
}

}  // namespace vendlingua
