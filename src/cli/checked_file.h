#ifndef VENDLINGUA_CLI_CHECKED_FILE_H_
#define VENDLINGUA_CLI_CHECKED_FILE_H_

#include <string>
#include <vector>

#include "cli/session.h"
#include "core/checks/check_basis.h"
#include "core/checks/language_check.h"
#include "core/checks/language_texts.h"

namespace vendlingua::cli {

/// The open file with all its languages, ready to be checked.
class CheckedFile {
 public:
  /// Reads the languages. `origin` is the number or name of the language that they are checked
  /// against, empty for the usual one. Throws CommandFailed when there is no such language or the
  /// languages overlap, and Error when the file cannot be read.
  CheckedFile(const Session& session, const std::string& origin);

  const CheckBasis& basis() const { return basis_; }

  /// Language 1 and what follows it.
  std::vector<int> Languages() const;

  /// The languages that go by these numbers or names, in ascending order; Languages() when there
  /// are none. Throws CommandFailed when the file has no such language.
  std::vector<int> Chosen(const Session& session, const std::vector<std::string>& chosen) const;

  const MessageTexts& TextsOf(int language) const { return Read(language).texts; }

  LanguageCheck CheckOf(int language, const Rules& rules = AllRules()) const;

 private:
  const LanguageTexts& Read(int language) const {
    return languages_.at(static_cast<std::size_t>(language));
  }

  std::vector<LanguageTexts> languages_;
  CheckBasis basis_;
};

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_CHECKED_FILE_H_
