#include "cli/cli_dialogs.h"

#include <iostream>

#include "core/texts/valid_utf8.h"

namespace vendlingua::cli {
namespace {

const char* OptionFor(InputPurpose purpose) {
  switch (purpose) {
    case InputPurpose::kLanguageCount:
      return "--languages";
    case InputPurpose::kLanguageMessage:
      return "--language-message";
    case InputPurpose::kMemoryStart:
      return "--memory-start";
    case InputPurpose::kMemoryLength:
      return "--memory-length";
    case InputPurpose::kNewLanguageName:
    case InputPurpose::kRenamedLanguageName:
      return "--name";
  }
  return "";
}

}  // namespace

std::filesystem::path WithDefaultExtension(std::filesystem::path path,
                                           const std::string& extension) {
  if (!path.empty() && !path.has_extension()) {
    path += "." + extension;
  }
  return path;
}

MessageAnswer CliDialogs::MessageBox(const MessageRequest& request) {
  messages_.push_back(request);
  std::cerr << ValidUtf8(request.title + ": " + request.text) << '\n';
  return request.buttons == MessageButtons::kYesNo ? MessageAnswer::kYes : MessageAnswer::kOk;
}

std::string CliDialogs::InputBox(const InputRequest& request) {
  std::deque<std::string>& answers = inputs[request.purpose];
  if (answers.empty()) {
    throw UnansweredQuestion("no answer to \"" + request.prompt + "\": give one more " +
                             OptionFor(request.purpose));
  }
  std::string answer = answers.front();
  if (request.purpose == InputPurpose::kNewLanguageName) {
    answers.pop_front();
  }
  return answer;
}

std::filesystem::path CliDialogs::OpenFile(const FileRequest& request) {
  return files[request.purpose];
}

std::filesystem::path CliDialogs::SaveFile(const FileRequest& request) {
  return WithDefaultExtension(files[request.purpose], request.default_extension);
}

}  // namespace vendlingua::cli
