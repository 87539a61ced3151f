#ifndef VENDLINGUA_CORE_CHECKS_RULES_LANGUAGE_RULES_H_
#define VENDLINGUA_CORE_CHECKS_RULES_LANGUAGE_RULES_H_

#include "core/checks/rule.h"

namespace vendlingua {

/// The language has no name, or that of a language before it: in the list of the file or in the
/// message that shows it. Found at that message, or at the first one where the file has none.
class NameOfLanguage : public Rule {
 public:
  NameOfLanguage() : Rule("language-name", Severity::kError) {}
  bool IsBrokenBy(const CheckedMessage& message) const override;
};

/// The file does not hold all messages of the language. Found at the first one that is missing.
class ShortBlock : public Rule {
 public:
  ShortBlock() : Rule("short-block", Severity::kError) {}
  bool IsBrokenBy(const CheckedMessage& message) const override {
    return message.number == message.held;
  }
  bool LooksBehindTheEnd() const override { return true; }
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_RULES_LANGUAGE_RULES_H_
