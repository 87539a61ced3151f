#ifndef VENDLINGUA_CORE_DESK_LIVE_FINDINGS_H_
#define VENDLINGUA_CORE_DESK_LIVE_FINDINGS_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/checks/check_basis.h"
#include "core/checks/finding.h"
#include "core/document/message_set.h"

namespace vendlingua {

/// What the checks find in the destination while it is edited. Nothing in a file whose languages
/// cannot all be read. What no rule can mend is mended by the text that the message had when the
/// language was opened, if nothing was wrong with that.
class LiveFindings {
 public:
  /// Looks at the document again: at what was edited since the last time, or at all of it when
  /// another file, origin, destination or display is chosen.
  void Follow(const MessageSet& set);

  /// The findings of a message; none behind the last one.
  const std::vector<Finding>& Of(std::size_t message) const;

  /// Whether a message has a finding that is more than a note. That it waits for its
  /// translation is none.
  bool NeedsWork(std::size_t message) const;

  /// How many messages have such a finding; nothing where nothing can be checked.
  std::optional<std::size_t> MessagesThatNeedWork() const;

  /// All of them, by message.
  std::vector<Finding> All() const;

 private:
  /// What the checks go by.
  struct Source {
    std::uint32_t file = 0;
    std::optional<int> origin;
    int destination = 0;
    std::size_t display_type = 0;
    std::size_t messages = 0;
    std::vector<std::string> names;

    bool operator==(const Source&) const = default;
  };

  void Clear();
  void Begin(const MessageSet& set);
  void LookAt(const MessageSet& set, const std::vector<std::size_t>& messages);

  std::optional<Source> source_;
  std::optional<CheckBasis> basis_;
  MessageTexts seen_;                           // the texts that were looked at
  std::vector<std::vector<Finding>> findings_;  // by message
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_LIVE_FINDINGS_H_
