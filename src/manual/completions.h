#ifndef VENDLINGUA_MANUAL_COMPLETIONS_H_
#define VENDLINGUA_MANUAL_COMPLETIONS_H_

#include <string>

#include "manual/grammar.h"

// Completion files: commands, options, values that are one of a set, and files.

namespace vendlingua::manual {

std::string BashCompletion(const Grammar& grammar);
std::string ZshCompletion(const Grammar& grammar);
std::string FishCompletion(const Grammar& grammar);

}  // namespace vendlingua::manual

#endif  // VENDLINGUA_MANUAL_COMPLETIONS_H_
