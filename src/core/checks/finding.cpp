#include "core/checks/finding.h"

#include <algorithm>

namespace vendlingua {

std::string_view NameOf(Severity severity) {
  switch (severity) {
    case Severity::kError:
      return "error";
    case Severity::kWarning:
      return "warning";
    case Severity::kNote:
      return "note";
  }
  return "";
}

std::size_t CountOf(const std::vector<Finding>& findings, Severity severity) {
  const auto is_of = [severity](const Finding& finding) { return finding.severity == severity; };
  return static_cast<std::size_t>(std::count_if(findings.begin(), findings.end(), is_of));
}

bool NeedsWork(const std::vector<Finding>& findings) {
  return CountOf(findings, Severity::kNote) < findings.size();
}

}  // namespace vendlingua
