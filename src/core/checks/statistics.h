#ifndef VENDLINGUA_CORE_CHECKS_STATISTICS_H_
#define VENDLINGUA_CORE_CHECKS_STATISTICS_H_

#include <cstddef>

#include "core/checks/check_basis.h"

namespace vendlingua {

/// How far a language is translated. Every message counts once.
struct LanguageStatistics {
  std::size_t translated = 0;
  std::size_t same = 0;   ///< says what the origin says, which may be nothing
  std::size_t blank = 0;  ///< says nothing although the origin does
};

LanguageStatistics StatisticsOf(const CheckBasis& basis, const MessageTexts& texts);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_STATISTICS_H_
