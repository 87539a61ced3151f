#ifndef VENDLINGUA_CORE_CHECKS_FINDING_H_
#define VENDLINGUA_CORE_CHECKS_FINDING_H_

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "core/document/display_code.h"

namespace vendlingua {

/// How bad a finding is.
enum class Severity {
  kError,    ///< the display shows it wrong
  kWarning,  ///< most likely a slip
  kNote,     ///< worth a look; often right
};
inline constexpr std::array kSeverities = {Severity::kError, Severity::kWarning, Severity::kNote};

/// "error", "warning" or "note".
std::string_view NameOf(Severity severity);

/// What a rule has to say about a message.
struct Finding {
  int language = 0;
  std::size_t message = 0;
  std::string_view rule;
  Severity severity = Severity::kError;
  DisplayCodes origin;  ///< as wide as the set
  DisplayCodes text;    ///< as the file holds it
  /// The text mended, where that needs no knowledge of the language.
  std::optional<DisplayCodes> fix;
};

/// How many of the findings are of this severity.
std::size_t CountOf(const std::vector<Finding>& findings, Severity severity);

/// Whether there is an error or a warning among them.
bool NeedsWork(const std::vector<Finding>& findings);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_FINDING_H_
