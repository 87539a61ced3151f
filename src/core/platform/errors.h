#ifndef VENDLINGUA_CORE_PLATFORM_ERRORS_H_
#define VENDLINGUA_CORE_PLATFORM_ERRORS_H_

#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>

#include "core/texts/english_texts.h"
#include "core/texts/ui_sentence.h"

namespace vendlingua {

/// Why an operation could not be done: a sentence for the user that names the file, the place in it
/// and the value. The windows say it in the interface language, in a critical box titled "ERROR";
/// what() is English, as the command line prints it.
class Error : public std::runtime_error {
 public:
  explicit Error(const UiSentence& sentence)
      : std::runtime_error(sentence.In(EnglishTexts())), sentence_(sentence) {}

  template <typename... Values>
  explicit Error(UiTextId id, const Values&... values) : Error(UiSentence(id, values...)) {}

  /// What is wrong, without a file's path.
  const UiSentence& sentence() const { return sentence_; }

  /// All of it, in the language of `texts`.
  virtual std::string In(const UiText& texts) const { return sentence_.In(texts); }

 protected:
  Error(const std::string& english, UiSentence sentence)
      : std::runtime_error(english), sentence_(std::move(sentence)) {}

 private:
  UiSentence sentence_;
};

/// An error about one file; its text begins with the file's path.
class FileError : public Error {
 public:
  FileError(const std::filesystem::path& file, const UiSentence& reason);

  template <typename... Values>
  FileError(const std::filesystem::path& file, UiTextId id, const Values&... values)
      : FileError(file, UiSentence(id, values...)) {}

  /// What is wrong, in English and without the path.
  std::string reason() const { return sentence().In(EnglishTexts()); }

  std::string In(const UiText& texts) const override;

 private:
  std::filesystem::path file_;
};

/// A file error of a disk or folder that is not there: no medium, a folder that was removed.
class FolderNotReadyError : public FileError {
 public:
  using FileError::FileError;
};

/// An open file that is no longer what was read, so that nothing can be saved into it.
class FileChangedError : public FileError {
 public:
  using FileError::FileError;
};

/// What an exception says, in the language of `texts` if it can.
std::string MessageOf(const std::exception& exception, const UiText& texts);

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
    throw FileError(file, error.sentence());
  }
}

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_ERRORS_H_
