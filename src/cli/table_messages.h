#ifndef VENDLINGUA_CLI_TABLE_MESSAGES_H_
#define VENDLINGUA_CLI_TABLE_MESSAGES_H_

#include <string>

#include "core/exchange/translation_plan.h"

// What is wrong with a table of translations, in words.

namespace vendlingua::cli {

/// Why table `file` is refused: one line a problem.
std::string InWords(const std::string& file, TableFormat format, const TableProblems& problems);

std::string InWords(const std::string& file, TableFormat format, const PlanWarning& warning);

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_TABLE_MESSAGES_H_
