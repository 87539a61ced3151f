#ifndef VENDLINGUA_CLI_CLI_DIALOGS_H_
#define VENDLINGUA_CLI_CLI_DIALOGS_H_

#include <deque>
#include <filesystem>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/platform/dialogs.h"

namespace vendlingua::cli {

/// A question of an operation that no option answers: the command stops. It is no
/// vendlingua::Error, so that no operation takes it for a failure of its own.
class UnansweredQuestion : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A path as a file dialog returns it: with the default extension where it has none.
std::filesystem::path WithDefaultExtension(std::filesystem::path path,
                                           const std::string& extension);

/// Answers the questions of the operations with the options of the command line. Message boxes are
/// told on stderr as "title: text" and kept for the JSON output.
class CliDialogs : public Dialogs {
 public:
  /// The answers to one kind of question; the last one is given again and again, except that names
  /// of languages are used up one by one.
  std::map<InputPurpose, std::deque<std::string>> inputs;
  std::map<FilePurpose, std::filesystem::path> files;  ///< an empty path: cancelled

  const std::vector<MessageRequest>& messages() const { return messages_; }

  MessageAnswer MessageBox(const MessageRequest& request) override;
  std::string InputBox(const InputRequest& request) override;
  std::optional<std::filesystem::path> OpenFile(const FileRequest& request) override;
  std::optional<std::filesystem::path> SaveFile(const FileRequest& request) override;
  std::vector<ConflictAnswer> ResolveConflicts(const ConflictRequest& request) override;
  void LetPendingEventsRun() override {}

 private:
  std::optional<std::filesystem::path> GivenFile(FilePurpose purpose) const;

  std::vector<MessageRequest> messages_;
};

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_CLI_DIALOGS_H_
