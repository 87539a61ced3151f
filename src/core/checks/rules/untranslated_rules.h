#ifndef VENDLINGUA_CORE_CHECKS_RULES_UNTRANSLATED_RULES_H_
#define VENDLINGUA_CORE_CHECKS_RULES_UNTRANSLATED_RULES_H_

#include "core/checks/rule.h"

namespace vendlingua {

/// Nothing is drawn where the origin says something.
class Blank : public Rule {
 public:
  Blank() : Rule("blank", Severity::kError) {}
  bool IsBrokenBy(const CheckedMessage& message) const override { return message.IsBlank(); }
};

/// The text says what the origin says, in words that could be translated. Names and loan words are
/// rightly so, but not in a language that is full of it.
class SameAsOrigin : public Rule {
 public:
  SameAsOrigin() : Rule("same-as-origin", Severity::kNote) {}
  bool IsBrokenBy(const CheckedMessage& message) const override;
  Severity SeverityOf(const CheckedMessage& message) const override;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_RULES_UNTRANSLATED_RULES_H_
