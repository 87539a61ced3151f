#include "cli/session.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <iostream>
#include <system_error>

#include "cli/standard_streams.h"
#include "core/formats/held_messages.h"
#include "core/formats/message_file.h"
#include "core/operations/interface_language.h"
#include "core/operations/taken_names.h"
#include "core/platform/errors.h"
#include "core/platform/executable_folder.h"
#include "core/platform/in_place_change.h"
#include "core/platform/path_of.h"
#include "core/texts/valid_utf8.h"

namespace vendlingua::cli {
namespace {

const char* IconName(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kCritical:
      return "critical";
    case MessageIcon::kExclamation:
      return "exclamation";
    case MessageIcon::kInformation:
      return "information";
    case MessageIcon::kQuestion:
      return "question";
  }
  return "";
}

std::string AsPrinted(const Json& json) {
  return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::optional<int> NumberOf(const std::string& text) {
  int number = 0;
  const char* end = text.data() + text.size();
  const auto parsed = std::from_chars(text.data(), end, number);
  return parsed.ec == std::errc() && parsed.ptr == end ? std::optional(number) : std::nullopt;
}

void RequireLanguage(const MessageSet& file, int language) {
  if (!file.HoldsLanguage(language)) {
    throw CommandFailed(PathText(file.CurrentFileName) + ": has no language " +
                        std::to_string(language));
  }
}

DisplayCodes InCapitals(const std::string& name) {
  DisplayCodes codes = Alphabet::Of(0).CodesOf(name).codes;
  std::transform(codes.begin(), codes.end(), codes.begin(), ToUpper);
  return codes;
}

}  // namespace

Session::Session() : engine(dialogs) {
  engine.workspace.folders.program = ExecutableFolder();
  engine.workspace.ui_text = EnglishTexts();
  try {
    LoadLanguageFile(engine.workspace, "english.lng");
  } catch (const FileError&) {
    // The texts that are built in do as well.
  }
}

void Session::Open(const std::string& name) {
  const std::filesystem::path file = PathOf(name);
  const std::string type = MessageFileType(file);
  if (!IsMessageFileType(type)) {
    throw FileError(file, UiTextId::kNoMessageFile);
  }
  if (type == kMesType && IsAssemblerSource(file)) {
    throw CommandFailed(PathText(file) +
                        ": is no binary message file; the command \"import\" makes one of an "
                        "assembler source");
  }
  // The editor offers to put a file back whose save was interrupted; a script has to say so.
  ReadSharedFile(file);
  dialogs.files[FilePurpose::kOpenMessages] = file;
  if (engine.opener.Open() != OpenOutcome::kOpened) {
    throw CommandFailed(PathText(file) + ": was not opened");
  }
}

void Session::RequireDestination(int language) const {
  LanguageName(language);
  if (language == 0) {
    throw CommandFailed(PathText(set().CurrentFileName) +
                        ": language 0 is the reference and cannot be changed");
  }
}

void Session::OpenDestination(int language, int message) {
  RequireDestination(language);
  if (message < 0 || message > set().LastMsg) {
    throw CommandFailed(PathText(set().CurrentFileName) + ": has no message " +
                        std::to_string(message) + ", they run from 0 to " +
                        std::to_string(set().LastMsg));
  }
  engine.languages.ChooseOrigin(0);
  // Moving stores the message that is left, so the move comes before the texts are read.
  engine.editing.GoTo(static_cast<std::size_t>(message));
  engine.languages.ChooseDestination(language);
  WarnIfItEndsEarly(set(), language);
}

void Session::Save() {
  const SaveOutcome outcome = engine.writer.Save();
  if (outcome.result != SaveOutcome::kSaved) {
    throw CommandFailed(outcome.reason);
  }
}

const std::string& Session::LanguageName(int language) const {
  RequireLanguage(set(), language);
  return set().language_names[static_cast<std::size_t>(language)];
}

int Session::FindLanguage(const std::string& number_or_name) const {
  return cli::FindLanguage(set(), number_or_name);
}

DisplayCodes Session::CodesOf(const std::string& utf8) const {
  DrawnText drawn = alphabet().CodesOf(utf8);
  if (!drawn.unknown.empty()) {
    throw CommandFailed(PathText(set().CurrentFileName) + ": " + NotDrawn(utf8, drawn.unknown));
  }
  return std::move(drawn.codes);
}

void Session::Print(const Json& json, const std::string& text) {
  has_printed_ = true;
  std::cout << (json_output ? AsPrinted(json) : ValidUtf8(text)) << std::flush;
  if (!std::cout) {
    throw CommandFailed("standard output: cannot be written");
  }
}

void Session::Warn(const std::string& warning) { TellOnStderr("warning: " + warning); }

void Session::Refuse(const std::string& reason) {
  TellOnStderr(reason);
  if (!json_output || has_printed_) {
    return;
  }
  Json json = {{"error", reason}};
  if (!dialogs.messages().empty()) {
    json["notices"] = Notices();
  }
  std::cout << AsPrinted(json) << std::flush;
}

Json Session::Notices() const {
  Json notices = Json::array();
  for (const MessageRequest& message : dialogs.messages()) {
    notices.push_back(
        {{"icon", IconName(message.icon)}, {"title", message.title}, {"text", message.text}});
  }
  return notices;
}

int FindLanguage(const MessageSet& file, const std::string& number_or_name) {
  if (const auto number = NumberOf(number_or_name)) {
    RequireLanguage(file, *number);
    return *number;
  }
  const auto& names = file.language_names;
  const auto is_meant = [meant = InCapitals(number_or_name)](const std::string& name) {
    return InCapitals(name) == meant;
  };
  const auto found = std::find_if(names.begin(), names.end(), is_meant);
  if (found == names.end()) {
    throw CommandFailed(PathText(file.CurrentFileName) + ": has no language \"" + number_or_name +
                        "\"");
  }
  if (std::any_of(found + 1, names.end(), is_meant)) {
    throw CommandFailed(PathText(file.CurrentFileName) + ": has several languages \"" +
                        number_or_name + "\"; give the number");
  }
  return static_cast<int>(found - names.begin());
}

void WarnIfItEndsEarly(const MessageSet& file, int language) {
  if (EndsEarly(file, language)) {
    const UiSentence notice(UiTextId::kLanguageEndsEarly, language);
    Session::Warn(PathText(file.CurrentFileName) + ": " + notice.In(EnglishTexts()));
  }
}

NameField RequireName(const MessageSet& file, int language, const std::string& name) {
  const std::string path = PathText(file.CurrentFileName);
  NameField field = NamingFile(file.CurrentFileName, [&] { return NameField::FromAnswer(name); });
  if (field.IsBlank()) {
    throw CommandFailed(path + ": the name of a language cannot be blank");
  }
  if (NameIsTaken(file, language, field)) {
    throw CommandFailed(path + ": another language is named \"" + field.Caption() + "\"");
  }
  return field;
}

void RefuseToOverwrite(const std::filesystem::path& input, const std::filesystem::path& output) {
  std::error_code not_there;
  if (std::filesystem::equivalent(input, output, not_there)) {
    throw CommandFailed(PathText(output) + ": is read by this command; give another --output");
  }
}

std::string NotDrawn(const std::string& text, const std::vector<std::string>& characters) {
  return fmt::format("\"{}\": the display does not have the character{} \"{}\"", text,
                     characters.size() > 1 ? "s" : "", fmt::join(characters, "\", \""));
}

}  // namespace vendlingua::cli
