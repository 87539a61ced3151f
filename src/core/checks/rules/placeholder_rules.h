#ifndef VENDLINGUA_CORE_CHECKS_RULES_PLACEHOLDER_RULES_H_
#define VENDLINGUA_CORE_CHECKS_RULES_PLACEHOLDER_RULES_H_

#include "core/checks/rule.h"

namespace vendlingua {

/// Where the board writes and where the text leaves it room must be the same cells. The fix of all
/// three rules puts every placeholder to its cell.
class PlaceholderRule : public Rule {
 public:
  bool IsBrokenBy(const CheckedMessage& message) const final;
  std::optional<DisplayCodes> Fix(const CheckedMessage& message) const final;

 protected:
  explicit PlaceholderRule(std::string_view name) : Rule(name, Severity::kError) {}

 private:
  /// Whether a cell that holds `code` is wrong.
  virtual bool IsWrong(DisplayCode code, bool board_fills) const = 0;
};

/// A cell that the board fills is blank in the text: the next to edit it may write there.
class PlaceholderLost : public PlaceholderRule {
 public:
  PlaceholderLost() : PlaceholderRule("placeholder-lost") {}

 private:
  bool IsWrong(DisplayCode code, bool board_fills) const override {
    return board_fills && code == kBlank;
  }
};

/// A placeholder in a cell that the board leaves alone: it stays empty.
class PlaceholderStray : public PlaceholderRule {
 public:
  PlaceholderStray() : PlaceholderRule("placeholder-stray") {}

 private:
  bool IsWrong(DisplayCode code, bool board_fills) const override {
    return !board_fills && code == kPlaceholder;
  }
};

/// A character in a cell that the board fills: it is written over.
class PlaceholderOvertyped : public PlaceholderRule {
 public:
  PlaceholderOvertyped() : PlaceholderRule("placeholder-overtyped") {}

 private:
  bool IsWrong(DisplayCode code, bool board_fills) const override {
    return board_fills && code != kBlank && code != kPlaceholder;
  }
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_RULES_PLACEHOLDER_RULES_H_
