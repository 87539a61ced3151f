#ifndef VENDLINGUA_CORE_CHECKS_RULES_H_
#define VENDLINGUA_CORE_CHECKS_RULES_H_

#include <string>
#include <vector>

#include "core/checks/rule.h"

namespace vendlingua {

using Rules = std::vector<const Rule*>;

/// All rules there are, in the order in which findings of one message are told.
const Rules& AllRules();

/// The rules that go by `only`, or all if that is empty, without those that go by `ignored`.
Rules ChosenRules(const std::vector<std::string>& only, const std::vector<std::string>& ignored);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_RULES_H_
