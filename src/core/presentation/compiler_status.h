#ifndef VENDLINGUA_CORE_PRESENTATION_COMPILER_STATUS_H_
#define VENDLINGUA_CORE_PRESENTATION_COMPILER_STATUS_H_

#include <string>

#include "core/flash/compiler_state.h"
#include "core/flash/flash_compiler.h"
#include "core/texts/ui_text.h"

namespace vendlingua {

/// How many languages have to be ticked and how many are, for the status line.
std::string SelectionStatus(const CompilerState& compiler, int lang_count, const UiText& ui_text);

/// The names of the files that a run wrote and, on lines of their own, the languages that end
/// before their last message and the damaged records, for the status line; empty when it wrote
/// none.
std::string WrittenStatus(const CompileOutcome& outcome, const UiText& ui_text);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PRESENTATION_COMPILER_STATUS_H_
