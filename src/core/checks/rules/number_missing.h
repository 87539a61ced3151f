#ifndef VENDLINGUA_CORE_CHECKS_RULES_NUMBER_MISSING_H_
#define VENDLINGUA_CORE_CHECKS_RULES_NUMBER_MISSING_H_

#include "core/checks/rule.h"

namespace vendlingua {

/// A number, a code (E12, H2O) or a unit (°C, %) of the origin does not stand in the text.
class NumberMissing : public Rule {
 public:
  NumberMissing() : Rule("number-missing", Severity::kWarning) {}
  bool IsBrokenBy(const CheckedMessage& message) const override;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_RULES_NUMBER_MISSING_H_
