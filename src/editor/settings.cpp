#include "editor/settings.h"

#include <string_view>

#include "model/display_code.h"
#include "msgfiles/text_lines.h"
#include "platform/errors.h"
#include "platform/files.h"

namespace vendlingua {
namespace {

constexpr std::string_view kKey = "Lingua=";

}  // namespace

void ReadSettings(const std::filesystem::path& file, std::string& language_name) {
  try {
    const std::string content = ReadFile(file);
    const auto line = TextLines(content).Next();
    if (line && line->text.size() >= kKey.size()) {
      language_name = ToUtf8(CodesFromBytes(line->text.substr(kKey.size())));
    }
  } catch (const FileError&) {
    // A first start has no settings yet.
  }
}

void WriteSettings(const std::filesystem::path& file, const std::string& language_name) {
  WriteFile(file, std::string(kKey) + BytesFromCodes(ToDisplayCodes(language_name).codes) + "\r\n");
}

}  // namespace vendlingua
