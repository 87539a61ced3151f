#ifndef VENDLINGUA_TESTS_SUPPORT_SCRIPTED_DIALOGS_H_
#define VENDLINGUA_TESTS_SUPPORT_SCRIPTED_DIALOGS_H_

#include <deque>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/platform/dialogs.h"

namespace vendlingua::test {

/// Answers dialogs from queues, in order, and keeps every request. A request without an answer left
/// fails the test: message boxes with one button need none.
class ScriptedDialogs : public Dialogs {
 public:
  std::deque<std::string> input_answers;
  std::deque<std::filesystem::path> file_answers;  ///< an empty path: cancelled
  std::deque<MessageAnswer> yes_no_answers;

  std::deque<std::vector<ConflictAnswer>> conflict_answers;

  std::vector<MessageRequest> messages;
  std::vector<InputRequest> inputs;
  std::vector<FileRequest> open_requests;
  std::vector<FileRequest> save_requests;
  std::vector<ConflictRequest> conflict_requests;
  int pending_event_runs = 0;

  MessageAnswer MessageBox(const MessageRequest& request) override {
    messages.push_back(request);
    return request.buttons == MessageButtons::kYesNo ? Take(yes_no_answers, request.text)
                                                     : MessageAnswer::kOk;
  }

  std::string InputBox(const InputRequest& request) override {
    inputs.push_back(request);
    return Take(input_answers, request.prompt);
  }

  std::optional<std::filesystem::path> OpenFile(const FileRequest& request) override {
    open_requests.push_back(request);
    return TakeFile("a file to open");
  }

  std::optional<std::filesystem::path> SaveFile(const FileRequest& request) override {
    save_requests.push_back(request);
    return TakeFile("a file to save");
  }

  /// Leaves conflicts undecided when no answers are left.
  std::vector<ConflictAnswer> ResolveConflicts(const ConflictRequest& request) override {
    conflict_requests.push_back(request);
    if (conflict_answers.empty()) {
      return {};
    }
    std::vector<ConflictAnswer> answers = conflict_answers.front();
    conflict_answers.pop_front();
    return answers;
  }

  void LetPendingEventsRun() override { ++pending_event_runs; }

 private:
  std::optional<std::filesystem::path> TakeFile(const std::string& question) {
    const std::filesystem::path path = Take(file_answers, question);
    return path.empty() ? std::nullopt : std::optional(path);
  }

  template <typename Answer>
  static Answer Take(std::deque<Answer>& answers, const std::string& question) {
    if (answers.empty()) {
      throw std::logic_error("the script has no answer to: " + question);
    }
    Answer answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_SUPPORT_SCRIPTED_DIALOGS_H_
