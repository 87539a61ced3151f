#ifndef VENDLINGUA_TESTS_SUPPORT_ORDINARY_USER_H_
#define VENDLINGUA_TESTS_SUPPORT_ORDINARY_USER_H_

#ifndef _WIN32
#include <unistd.h>
#endif

namespace vendlingua::test {

#ifdef _WIN32

/// Files have no permission bits that hold here.
class OrdinaryUser {
 public:
  OrdinaryUser() {}
  static bool holds() { return false; }
};

#else

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

#endif

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_SUPPORT_ORDINARY_USER_H_
