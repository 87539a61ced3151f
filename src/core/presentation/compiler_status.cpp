#include "core/presentation/compiler_status.h"

#include <fmt/format.h>

#include "core/platform/errors.h"

namespace vendlingua {

std::string SelectionStatus(const CompilerState& compiler, int lang_count, const UiText& ui_text) {
  return fmt::format("{} {}, {} {}", ui_text[UiTextId::kLanguagesToChoose], lang_count,
                     ui_text[UiTextId::kLanguagesChosen], compiler.TickedLanguages().size());
}

std::string WrittenStatus(const CompileOutcome& outcome, const UiText& ui_text) {
  std::vector<std::string> files;
  for (const auto& path : outcome.written) {
    files.push_back(PathText(path.filename()));
  }
  std::vector<std::string> languages;
  for (const auto& language : outcome.short_languages) {
    languages.push_back(language.name);
  }
  std::string status;
  if (!files.empty()) {
    status = fmt::format("{} {}", ui_text[UiTextId::kFilesWritten], fmt::join(files, ", "));
  }
  if (!languages.empty()) {
    status +=
        fmt::format("\n{} {}", ui_text[UiTextId::kShortLanguages], fmt::join(languages, ", "));
  }
  if (!outcome.damaged_records.empty()) {
    const UiSentence damage(UiTextId::kDamagedRecords, outcome.damaged_records.size(),
                            outcome.damaged_records.front().line);
    status += "\n" + damage.In(ui_text);
  }
  return status;
}

}  // namespace vendlingua
