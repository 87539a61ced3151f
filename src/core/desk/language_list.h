#ifndef VENDLINGUA_CORE_DESK_LANGUAGE_LIST_H_
#define VENDLINGUA_CORE_DESK_LANGUAGE_LIST_H_

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "core/desk/row_state.h"
#include "core/document/message_set.h"

namespace vendlingua {

/// A language of the open file beside the others.
struct ListedLanguage {
  int number;
  std::string name;  ///< UTF-8
  /// Nothing for the origin, for what the file does not hold completely, and before an origin is
  /// chosen.
  std::optional<Progress> progress{};
  /// Messages with errors or warnings, where they are counted.
  std::optional<std::size_t> findings{};
  bool is_origin = false;
  bool is_destination = false;

  bool operator==(const ListedLanguage&) const = default;
};

/// The languages that can be translated into, in the order of the file: the open one as it is being
/// edited, the others as the file holds them.
std::vector<ListedLanguage> ListLanguages(const MessageSet& set);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_LANGUAGE_LIST_H_
