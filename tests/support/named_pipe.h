#ifndef VENDLINGUA_TESTS_SUPPORT_NAMED_PIPE_H_
#define VENDLINGUA_TESTS_SUPPORT_NAMED_PIPE_H_

#include <filesystem>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace vendlingua::test {

/// Makes a pipe among the files, of which Windows has none. Returns whether it is there.
inline bool MakePipe([[maybe_unused]] const std::filesystem::path& path) {
#ifdef _WIN32
  return false;
#else
  constexpr mode_t kForItsUser = 0600;
  return mkfifo(path.c_str(), kForItsUser) == 0;
#endif
}

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_SUPPORT_NAMED_PIPE_H_
