#ifndef VENDLINGUA_CORE_PLATFORM_ERRORS_H_
#define VENDLINGUA_CORE_PLATFORM_ERRORS_H_

#include <filesystem>
#include <stdexcept>
#include <string>

namespace vendlingua {

/// Why an operation could not be done: a sentence for the user that names the file, the place in it
/// and the value. The windows show it in a critical box titled "ERROR", the command line on stderr.
class Error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An error about one file; its text begins with the file's path.
class FileError : public Error {
 public:
  FileError(const std::filesystem::path& file, const std::string& reason);

  /// What is wrong, without the path.
  const std::string& reason() const { return reason_; }

 private:
  std::string reason_;
};

/// A file error of a disk or folder that is not there: no medium, a folder that was removed.
class FolderNotReadyError : public FileError {
 public:
  using FileError::FileError;
};

/// A path as UTF-8 text, for messages. What of it is no text becomes U+FFFD, so that it is not
/// always the way to the file.
std::string PathText(const std::filesystem::path& path);

/// Returns what `work` returns. An error of it that names no file becomes one about `file`.
template <typename Work>
auto NamingFile(const std::filesystem::path& file, const Work& work) {
  try {
    return work();
  } catch (const FileError&) {
    throw;
  } catch (const Error& error) {
    throw FileError(file, error.what());
  }
}

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_ERRORS_H_
