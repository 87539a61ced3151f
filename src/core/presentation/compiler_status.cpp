#include "core/presentation/compiler_status.h"

#include "core/platform/errors.h"

namespace vendlingua {

std::string SelectionStatus(const CompilerState& compiler, int lang_count, const UiText& ui_text) {
  return ui_text[58] + " " + std::to_string(lang_count) + ", " + ui_text[59] + " " +
         std::to_string(compiler.TickedLanguages().size());
}

std::string WrittenStatus(const CompileOutcome& outcome, const UiText& ui_text) {
  std::string names;
  for (const auto& path : outcome.written) {
    names += (names.empty() ? " " : ", ") + PathText(path.filename());
  }
  return names.empty() ? "" : ui_text[57] + names;
}

}  // namespace vendlingua
