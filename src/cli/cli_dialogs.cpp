#include "cli/cli_dialogs.h"

#include <fmt/format.h>

#include "cli/standard_streams.h"
#include "core/document/alphabet.h"

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
    case InputPurpose::kMessageNumber:
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
  TellOnStderr((request.title.empty() ? "" : request.title + ": ") + request.text);
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

std::optional<std::filesystem::path> CliDialogs::OpenFile(const FileRequest& request) {
  return GivenFile(request.purpose);
}

std::optional<std::filesystem::path> CliDialogs::SaveFile(const FileRequest& request) {
  auto path = GivenFile(request.purpose);
  return path ? WithDefaultExtension(*path, request.default_extension) : path;
}

// They are listed and left undecided: nothing is written then.
std::vector<ConflictAnswer> CliDialogs::ResolveConflicts(const ConflictRequest& request) {
  const Alphabet& alphabet = Alphabet::Of(request.display);
  for (std::size_t i = 0; i < request.conflicts.size(); ++i) {
    const EditConflict& conflict = request.conflicts[i];
    TellOnStderr(fmt::format(R"({} In the file: "{}", to be saved: "{}")", request.questions[i],
                             alphabet.TextOf(conflict.theirs), alphabet.TextOf(conflict.mine)));
  }
  return {};
}

std::optional<std::filesystem::path> CliDialogs::GivenFile(FilePurpose purpose) const {
  const auto file = files.find(purpose);
  return file == files.end() || file->second.empty() ? std::nullopt : std::optional(file->second);
}

}  // namespace vendlingua::cli
