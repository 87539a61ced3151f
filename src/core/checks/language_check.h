#ifndef VENDLINGUA_CORE_CHECKS_LANGUAGE_CHECK_H_
#define VENDLINGUA_CORE_CHECKS_LANGUAGE_CHECK_H_

#include <cstddef>
#include <vector>

#include "core/checks/check_basis.h"
#include "core/checks/finding.h"
#include "core/checks/rules.h"

namespace vendlingua {

/// The checks of one language. The texts are looked at when they are asked about, so that they may
/// be edited in between; asking about one message costs no more than looking at two.
class LanguageCheck {
 public:
  /// `basis` and `texts` are kept and must outlive this; `texts` has as many messages as the basis
  /// at least. The file holds the first `held` of them; of a language that is being edited that is
  /// all. `language` may be `kNewLanguage`.
  LanguageCheck(const CheckBasis& basis, int language, const MessageTexts& texts, std::size_t held,
                Rules rules = AllRules());

  /// What the rules find in one message.
  std::vector<Finding> FindingsOf(std::size_t message) const;

  /// What they find in the language, by message.
  std::vector<Finding> Findings() const;

 private:
  CheckedMessage Message(std::size_t number) const;
  DisplayText TextOf(std::size_t message) const;
  bool IsUnfinished() const;

  const CheckBasis& basis_;
  int language_;
  const MessageTexts& texts_;
  std::size_t held_;
  Rules rules_;
  bool is_unfinished_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_LANGUAGE_CHECK_H_
