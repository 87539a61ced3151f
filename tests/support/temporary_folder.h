#ifndef VENDLINGUA_TESTS_SUPPORT_TEMPORARY_FOLDER_H_
#define VENDLINGUA_TESTS_SUPPORT_TEMPORARY_FOLDER_H_

#include <filesystem>
#include <string>
#include <string_view>

#include "core/platform/path_of.h"

namespace vendlingua::test {

/// A folder of its own for one test, removed with everything in it at the end.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(std::string_view name) const { return path_ / PathOf(name); }

  /// Writes a file into the folder and returns its path. Throws std::runtime_error.
  std::filesystem::path Write(std::string_view name, std::string_view content) const;

  /// Names of the files in the folder, sorted, joined by blanks.
  std::string Names() const;

 private:
  std::filesystem::path path_;
};

/// The bytes of a file. Throws std::runtime_error, which fails the test, when it cannot be read.
std::string Slurp(const std::filesystem::path& path);

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_SUPPORT_TEMPORARY_FOLDER_H_
