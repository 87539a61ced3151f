#ifndef VENDLINGUA_CORE_DESK_MISSING_TRANSLATION_H_
#define VENDLINGUA_CORE_DESK_MISSING_TRANSLATION_H_

#include "core/checks/finding.h"

namespace vendlingua {

/// Whether a finding is what the state of a message says already: that it is to do.
inline bool IsAboutMissingTranslation(const Finding& finding) {
  return finding.rule == "blank" || finding.rule == "same-as-origin";
}

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_MISSING_TRANSLATION_H_
