#ifndef VENDLINGUA_TESTS_SUPPORT_SAME_BYTES_H_
#define VENDLINGUA_TESTS_SUPPORT_SAME_BYTES_H_

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

namespace vendlingua::test {

/// Whether two file contents are equal; names the first byte that is not, where a listing of both
/// would be too long to read.
inline ::testing::AssertionResult SameBytes(std::string_view actual, std::string_view expected) {
  if (actual == expected) {
    return ::testing::AssertionSuccess();
  }
  const auto [at, other] =
      std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end());
  return ::testing::AssertionFailure()
         << actual.size() << " bytes instead of " << expected.size() << ", from byte "
         << at - actual.begin() << " on: \"" << std::string_view(at, actual.end()).substr(0, 60)
         << "\" instead of \"" << std::string_view(other, expected.end()).substr(0, 60) << '"';
}

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_SUPPORT_SAME_BYTES_H_
