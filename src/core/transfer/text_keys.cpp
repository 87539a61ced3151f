#include "core/transfer/text_keys.h"

#include <algorithm>

namespace vendlingua {
namespace {

bool IsFilling(DisplayCode code) { return code == kBlank || code == kPlaceholder; }

}  // namespace

bool HasWords(std::span<const DisplayCode> text) {
  return !std::all_of(text.begin(), text.end(), IsFilling);
}

std::string WithoutLayout(std::span<const DisplayCode> text) {
  const auto trimmed = Trim(text);
  std::string result(trimmed.begin(), trimmed.end());
  result.erase(
      std::unique(result.begin(), result.end(),
                  [](char a, char b) { return a == b && IsFilling(static_cast<DisplayCode>(a)); }),
      result.end());
  return result;
}

std::string WordsKey(std::span<const DisplayCode> text) {
  std::string key = WithoutLayout(text);
  std::erase(key, static_cast<char>(kBlank));
  return key;
}

}  // namespace vendlingua
