#ifndef VENDLINGUA_TESTS_SUPPORT_SKIP_ON_WINDOWS_H_
#define VENDLINGUA_TESTS_SUPPORT_SKIP_ON_WINDOWS_H_

#include <gtest/gtest.h>

/// Ends a test that needs what Windows does not have, or not for everybody; `needed` names it.
#ifdef _WIN32
#define SKIP_ON_WINDOWS(needed) GTEST_SKIP() << "Windows has no " << (needed)
#else
#define SKIP_ON_WINDOWS(needed) static_cast<void>(needed)
#endif

#endif  // VENDLINGUA_TESTS_SUPPORT_SKIP_ON_WINDOWS_H_
