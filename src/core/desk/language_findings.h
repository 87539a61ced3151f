#ifndef VENDLINGUA_CORE_DESK_LANGUAGE_FINDINGS_H_
#define VENDLINGUA_CORE_DESK_LANGUAGE_FINDINGS_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/document/message_set.h"

namespace vendlingua {

/// How many messages of each language of the file have errors or warnings, as the file holds them.
/// That they wait for their translation is none.
class LanguageFindings {
 public:
  /// Looks at the file again when it, the origin or the display is another one.
  void Follow(const MessageSet& set);

  /// Nothing for the origin, and for a file whose languages cannot all be read.
  std::optional<std::size_t> Of(int language) const;

 private:
  struct Source {
    std::string content;
    std::optional<int> origin;
    std::size_t display_type = 0;
    std::size_t messages = 0;

    bool operator==(const Source&) const = default;
  };

  std::optional<Source> source_;
  std::vector<std::optional<std::size_t>> counts_;  // by language
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_LANGUAGE_FINDINGS_H_
