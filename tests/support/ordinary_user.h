#ifndef VENDLINGUA_TESTS_SUPPORT_ORDINARY_USER_H_
#define VENDLINGUA_TESTS_SUPPORT_ORDINARY_USER_H_

#include <unistd.h>

namespace vendlingua::test {

/// While it lives permission bits hold, for a test that is run by root, too: root goes on as a user
/// without rights.
class OrdinaryUser {
 public:
  OrdinaryUser() {
    if (user_before_ == kRoot) {
      Become(kNobody);
    }
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() { Become(user_before_); }

  /// False where root may not change.
  bool holds() const { return geteuid() != kRoot; }

 private:
  static constexpr uid_t kRoot = 0;
  static constexpr uid_t kNobody = 65534;

  // What a failure means shows in the user that the process then has.
  static void Become(uid_t user) { [[maybe_unused]] const int failed = seteuid(user); }

  uid_t user_before_ = geteuid();
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_SUPPORT_ORDINARY_USER_H_
