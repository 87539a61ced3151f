#ifndef VENDLINGUA_CORE_DESK_SECOND_REFERENCE_H_
#define VENDLINGUA_CORE_DESK_SECOND_REFERENCE_H_

#include <cstddef>
#include <span>
#include <string>
#include <utility>

#include "core/document/message_set.h"

namespace vendlingua {

/// A language of the open file that is read beside the origin, for who understands it better.
class SecondReference {
 public:
  /// By the name that the language has in its files, UTF-8; none when it is empty. A file that
  /// lacks it has no second reference.
  void Choose(std::string name) { name_ = std::move(name); }
  const std::string& name() const { return name_; }

  /// Looks at the document again.
  void Follow(const MessageSet& set);

  /// Whether the open file has the language that was chosen.
  bool IsThere() const { return !texts_.empty(); }

  /// What it says in a message, at the width of the set that was looked at. Needs IsThere().
  std::span<const DisplayCode> Of(std::size_t message) const;

 private:
  std::string name_;
  MessageTexts texts_;
  std::size_t width_ = 0;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_SECOND_REFERENCE_H_
