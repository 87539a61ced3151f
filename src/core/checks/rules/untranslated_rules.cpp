#include "core/checks/rules/untranslated_rules.h"

#include "core/checks/words.h"

namespace vendlingua {

bool SameAsOrigin::IsBrokenBy(const CheckedMessage& message) const {
  return !message.basis.IsOrigin(message.language) &&
         HoldsWords(message.basis.alphabet(), message.Text()) &&
         WordsOf(message.Text()) == WordsOf(message.Origin());
}

Severity SameAsOrigin::SeverityOf(const CheckedMessage& message) const {
  return message.language_is_unfinished ? Severity::kWarning : Rule::SeverityOf(message);
}

}  // namespace vendlingua
