#include "core/operations/taken_names.h"

#include <cstddef>

namespace vendlingua {

bool NameIsTaken(const MessageSet& set, int language, const NameField& name) {
  for (std::size_t i = 1; i < set.language_names.size(); ++i) {
    if (i != static_cast<std::size_t>(language) && set.language_names[i] == name.Caption()) {
      return true;
    }
  }
  return false;
}

}  // namespace vendlingua
