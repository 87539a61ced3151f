#ifndef VENDLINGUA_CLI_CHARACTERS_H_
#define VENDLINGUA_CLI_CHARACTERS_H_

#include <utf8.h>

#include <cstddef>
#include <string_view>

namespace vendlingua::cli {

/// How many characters UTF-8 text has, which is how wide a column has to be for it.
inline std::size_t Characters(std::string_view utf8) {
  return static_cast<std::size_t>(utf8::distance(utf8.begin(), utf8.end()));
}

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_CHARACTERS_H_
