#ifndef VENDLINGUA_TESTS_SUPPORT_DISPLAY_TYPES_H_
#define VENDLINGUA_TESTS_SUPPORT_DISPLAY_TYPES_H_

#include <cstddef>

namespace vendlingua::test {

/// The display types by their numbers.
inline constexpr std::size_t kNormal = 0;
inline constexpr std::size_t kCyrillic = 1;
inline constexpr std::size_t kKatakana = 2;
inline constexpr std::size_t kHebrew = 3;

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_SUPPORT_DISPLAY_TYPES_H_
