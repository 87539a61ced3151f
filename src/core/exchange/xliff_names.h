#ifndef VENDLINGUA_CORE_EXCHANGE_XLIFF_NAMES_H_
#define VENDLINGUA_CORE_EXCHANGE_XLIFF_NAMES_H_

#include <cstddef>
#include <string>

namespace vendlingua::xliff {

inline constexpr const char* kRoot = "xliff";
inline constexpr const char* kUnit = "trans-unit";
inline constexpr const char* kSource = "source";
inline constexpr const char* kTarget = "target";
inline constexpr const char* kPlaceholder = "x";
inline constexpr const char* kTranslated = "translated";

/// What a placeholder of `cells` cells is shown as: "þþþ".
inline std::string EquivalentText(std::size_t cells) {
  std::string text;
  for (std::size_t i = 0; i < cells; ++i) {
    text += "þ";
  }
  return text;
}

}  // namespace vendlingua::xliff

#endif  // VENDLINGUA_CORE_EXCHANGE_XLIFF_NAMES_H_
