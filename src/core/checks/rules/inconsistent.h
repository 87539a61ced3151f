#ifndef VENDLINGUA_CORE_CHECKS_RULES_INCONSISTENT_H_
#define VENDLINGUA_CORE_CHECKS_RULES_INCONSISTENT_H_

#include "core/checks/rule.h"

namespace vendlingua {

/// The origin says the same in a message with a lower number, and the text does not.
class Inconsistent : public Rule {
 public:
  Inconsistent() : Rule("inconsistent", Severity::kNote) {}
  bool IsBrokenBy(const CheckedMessage& message) const override;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_RULES_INCONSISTENT_H_
