#ifndef VENDLINGUA_CLI_SESSION_H_
#define VENDLINGUA_CLI_SESSION_H_

#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "cli/cli_dialogs.h"
#include "cli/refusal.h"
#include "core/document/alphabet.h"
#include "core/document/name_field.h"
#include "core/engine.h"

namespace vendlingua::cli {

using Json = nlohmann::ordered_json;

/// One run of the program: the engine, the dialogs that answer it, and the output.
class Session {
 public:
  Session();

  CliDialogs dialogs;
  Engine engine;
  bool json_output = false;
  std::optional<std::size_t> display;     ///< overrules the display type of the file
  ExitStatus status = ExitStatus::kDone;  ///< of a command that came to its end

  MessageSet& set() { return engine.workspace.set; }
  const MessageSet& set() const { return engine.workspace.set; }

  /// What texts are read and written in: those of the open file, or of another one.
  const Alphabet& alphabet() const { return AlphabetFor(set()); }
  const Alphabet& AlphabetFor(const MessageSet& file) const {
    return Alphabet::Of(display.value_or(file.DisplayType));
  }

  /// Opens a message file. Throws CommandFailed or Error when it is none.
  void Open(const std::string& name);

  /// Throws CommandFailed when language `language` is not there or cannot be changed.
  void RequireDestination(int language) const;

  /// Opens language `language` as destination with message `message` as the current one, and entry
  /// 0 as origin.
  void OpenDestination(int language, int message);

  /// Saves the open file in place.
  void Save();

  /// The name of language `language`. Throws CommandFailed when the file has
  /// no such language.
  const std::string& LanguageName(int language) const;

  /// The number of the language that goes by this number or, without regard to case, by this name.
  /// Throws CommandFailed when the open file has none, or several of the name.
  int FindLanguage(const std::string& number_or_name) const;

  /// UTF-8 text as display codes. Throws CommandFailed, which names them all, when the display
  /// lacks characters.
  DisplayCodes CodesOf(const std::string& utf8) const;

  /// Prints `json` with --json, otherwise `text`. Throws CommandFailed when standard output cannot
  /// be written.
  void Print(const Json& json, const std::string& text);

  /// Tells on stderr what went on all the same, and why somebody should look at it.
  static void Warn(const std::string& warning);

  /// Tells on stderr why the program did not do what it was told; with --json on standard output,
  /// too, unless the command printed its report.
  void Refuse(const std::string& reason);

  /// The message boxes so far, for the JSON output.
  Json Notices() const;

 private:
  bool has_printed_ = false;
};

/// The same of any file.
int FindLanguage(const MessageSet& file, const std::string& number_or_name);

/// Warns on stderr when the file ends before the last message of a language that is read from it.
void WarnIfItEndsEarly(const MessageSet& file, int language);

/// A name that language `language` of a ".MES" file may be given, `kNewLanguage` for one to come.
/// Throws CommandFailed when it is blank or that of another language, Error when the display lacks
/// characters.
NameField RequireName(const MessageSet& file, int language, const std::string& name);

/// Throws CommandFailed when `output` is the file `input`, which it would overwrite.
void RefuseToOverwrite(const std::filesystem::path& input, const std::filesystem::path& output);

/// Says that the display cannot draw `characters` of `text`.
std::string NotDrawn(const std::string& text, const std::vector<std::string>& characters);

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_SESSION_H_
