#ifndef VENDLINGUA_CORE_COMPARE_MOST_DIFFERENCES_H_
#define VENDLINGUA_CORE_COMPARE_MOST_DIFFERENCES_H_

#include <cstddef>

namespace vendlingua {

/// So many differences of messages or bytes are listed; more are counted.
inline constexpr std::size_t kMostDifferences = 100'000;

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_COMPARE_MOST_DIFFERENCES_H_
