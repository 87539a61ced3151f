#include "core/formats/settings_file.h"

#include "core/document/display_code.h"
#include "core/formats/text_lines.h"
#include "core/texts/valid_utf8.h"

namespace vendlingua {
namespace {

constexpr std::string_view kKey = "Lingua=";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

std::optional<std::string> ParseSettings(std::string_view content) {
  const bool is_utf8 = content.starts_with(kByteOrderMark);
  if (is_utf8) {
    content.remove_prefix(kByteOrderMark.size());
  }
  const auto line = TextLines(content).Next();
  if (!line || line->text.size() < kKey.size()) {
    return std::nullopt;
  }
  const std::string_view name = line->text.substr(kKey.size());
  return is_utf8 ? ValidUtf8(name) : ToUtf8(CodesFromBytes(name));
}

std::string ComposeSettings(const std::string& language_name) {
  const CodesFromUtf8 name = ToDisplayCodes(language_name);
  const std::string key(kKey);
  return name.unknown ? std::string(kByteOrderMark) + key + language_name + "\r\n"
                      : key + BytesFromCodes(name.codes) + "\r\n";
}

}  // namespace vendlingua
