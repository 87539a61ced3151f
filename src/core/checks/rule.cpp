#include "core/checks/rule.h"

#include "core/checks/words.h"

namespace vendlingua {

bool CheckedMessage::IsBlank() const {
  const Alphabet& alphabet = basis.alphabet();
  return DrawsNothing(alphabet, Text()) && !DrawsNothing(alphabet, Origin());
}

}  // namespace vendlingua
