#include <iostream>

#include "gui/support/registered_test.h"

namespace vendlingua::test {

std::map<std::string, TestMain>& RegisteredTests() {
  static std::map<std::string, TestMain> tests;
  return tests;
}

}  // namespace vendlingua::test

// Usage: gui_tests CLASS [what Qt Test takes]
int main(int argc, char** argv) {
  const auto& tests = vendlingua::test::RegisteredTests();
  const auto test = tests.find(argc > 1 ? argv[1] : "");
  if (test == tests.end()) {
    for (const auto& [name, run] : tests) {
      std::cerr << name << '\n';
    }
    return 2;
  }
  argv[1] = argv[0];
  return test->second(argc - 1, argv + 1);
}
