#ifndef VENDLINGUA_CORE_CHECKS_RULE_H_
#define VENDLINGUA_CORE_CHECKS_RULE_H_

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

#include "core/checks/check_basis.h"
#include "core/checks/finding.h"

namespace vendlingua {

/// A message of a language beside its origin, as rules see it: with placeholders in the cells that
/// the board fills, whatever the type of the file.
struct CheckedMessage {
  const CheckBasis& basis;
  int language;
  std::size_t number;
  /// How many messages the file holds of the language.
  std::size_t held;
  DisplayText origin_text;
  DisplayText translated_text;
  /// The text of the first message that has the same words in the origin.
  DisplayText first_of_same_words;
  /// Many messages of the language are still the origin.
  bool language_is_unfinished;

  std::span<const DisplayCode> Origin() const { return origin_text.First(basis.width()); }
  std::span<const DisplayCode> Text() const { return translated_text.First(basis.width()); }
  DisplayCodes CopyOfText() const { return {Text().begin(), Text().end()}; }

  /// Nothing stands where the origin says something; there is no more to find then.
  bool IsBlank() const;
};

/// One thing that can be wrong with a message.
class Rule {
 public:
  virtual ~Rule() = default;
  Rule(const Rule&) = delete;
  Rule& operator=(const Rule&) = delete;

  /// What users and scripts call it.
  std::string_view name() const { return name_; }

  /// Whether the message breaks the rule.
  virtual bool IsBrokenBy(const CheckedMessage& message) const = 0;

  virtual Severity SeverityOf(const CheckedMessage& /*message*/) const { return severity_; }

  /// The text of a message that breaks the rule, mended; nothing where that takes a translator.
  virtual std::optional<DisplayCodes> Fix(const CheckedMessage& /*message*/) const {
    return std::nullopt;
  }

  /// Whether it has a say on messages that the file does not hold.
  virtual bool LooksBehindTheEnd() const { return false; }

 protected:
  Rule(std::string_view name, Severity severity) : name_(name), severity_(severity) {}

 private:
  std::string_view name_;
  Severity severity_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_RULE_H_
