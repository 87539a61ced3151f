#include "core/checks/rules/inconsistent.h"

#include "core/checks/words.h"

namespace vendlingua {

bool Inconsistent::IsBrokenBy(const CheckedMessage& message) const {
  if (WordsOf(message.Origin()).empty()) {
    return false;
  }
  const DisplayCodes first = WordsOf(message.first_of_same_words.First(message.basis.width()));
  const DisplayCodes own = WordsOf(message.Text());
  return !own.empty() && !first.empty() && own != first;
}

}  // namespace vendlingua
