#ifndef VENDLINGUA_CORE_DESK_FINDING_TEXT_H_
#define VENDLINGUA_CORE_DESK_FINDING_TEXT_H_

#include <string>

#include "core/checks/finding.h"
#include "core/texts/ui_text.h"

namespace vendlingua {

/// What is wrong, in the language of `ui_text`.
std::string SentenceOf(const Finding& finding, const UiText& ui_text);

/// What the fix of a finding does.
UiTextId FixNameOf(const Finding& finding);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_FINDING_TEXT_H_
