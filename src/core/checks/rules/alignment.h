#ifndef VENDLINGUA_CORE_CHECKS_RULES_ALIGNMENT_H_
#define VENDLINGUA_CORE_CHECKS_RULES_ALIGNMENT_H_

#include "core/checks/rule.h"

namespace vendlingua {

/// The words stand in another way than those of the origin: centred, at the left or at the right.
class Alignment : public Rule {
 public:
  Alignment() : Rule("alignment", Severity::kWarning) {}
  bool IsBrokenBy(const CheckedMessage& message) const override;
  std::optional<DisplayCodes> Fix(const CheckedMessage& message) const override;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_RULES_ALIGNMENT_H_
