#ifndef VENDLINGUA_MANUAL_MAN_PAGE_H_
#define VENDLINGUA_MANUAL_MAN_PAGE_H_

#include <string>

#include "manual/grammar.h"

namespace vendlingua::manual {

/// The manual page of the program in the macros of man(7). `date` is YYYY-MM-DD.
std::string ManPage(const Grammar& grammar, const std::string& version, const std::string& date);

}  // namespace vendlingua::manual

#endif  // VENDLINGUA_MANUAL_MAN_PAGE_H_
