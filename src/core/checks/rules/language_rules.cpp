#include "core/checks/rules/language_rules.h"

#include <algorithm>
#include <span>

namespace vendlingua {
namespace {

// The languages before one; the reference is another copy of the first and does not count.
std::span<const LanguageName> NamesBefore(const CheckedMessage& message) {
  const std::span<const LanguageName> names = message.basis.names();
  const auto own = std::min(static_cast<std::size_t>(message.language), names.size());
  return own > 1 ? names.subspan(1, own - 1) : names.first(0);
}

bool ListedNameIsWrong(const CheckedMessage& message) {
  const std::string* own = message.basis.ListedName(message.language);
  if (own == nullptr) {
    return false;
  }
  const auto before = NamesBefore(message);
  return own->empty() || std::any_of(before.begin(), before.end(), [own](const LanguageName& name) {
           return name.listed == *own;
         });
}

bool ShownNameIsWrong(const CheckedMessage& message) {
  const auto before = NamesBefore(message);
  const auto own = Trim(message.Text());
  return own.empty() || std::any_of(before.begin(), before.end(), [own](const LanguageName& name) {
           return std::equal(own.begin(), own.end(), name.shown.begin(), name.shown.end());
         });
}

}  // namespace

bool NameOfLanguage::IsBrokenBy(const CheckedMessage& message) const {
  const auto name_message = message.basis.name_message();
  if (message.number != name_message.value_or(0)) {
    return false;
  }
  return ListedNameIsWrong(message) || (name_message && ShownNameIsWrong(message));
}

}  // namespace vendlingua
