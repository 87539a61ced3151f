#ifndef VENDLINGUA_CLI_SESSION_H_
#define VENDLINGUA_CLI_SESSION_H_

#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "cli/cli_dialogs.h"
#include "core/document/alphabet.h"
#include "core/engine.h"

namespace vendlingua::cli {

using Json = nlohmann::ordered_json;

/// What the program tells its caller.
enum class ExitStatus : int { kDone = 0, kFailed = 1, kWrongUsage = 2 };
/// What a comparison tells: 0 when there is no difference, 2 when it could not be made.
inline constexpr ExitStatus kDifferent = ExitStatus::kFailed;
inline constexpr ExitStatus kTrouble = ExitStatus::kWrongUsage;

/// Why a command was refused or failed: exit status 1, the reason on stderr.
class CommandFailed : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A command line that lacks what the given file asks for: exit status 2.
class WrongUsage : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Why a comparison could not be made: exit status 2, because 1 says that the files differ.
class Trouble : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

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
  void Open(const std::filesystem::path& file);

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

  /// Prints `json` with --json, otherwise `text`.
  void Print(const Json& json, const std::string& text) const;

  /// The message boxes so far, for the JSON output.
  Json MessagesAsJson() const;
};

/// The same of any file.
int FindLanguage(const MessageSet& file, const std::string& number_or_name);

/// Warns on stderr when the file ends before the last message of a language that is read from it.
void WarnIfItEndsEarly(const MessageSet& file, int language);

/// Throws CommandFailed when `output` is the file `input`, which it would overwrite.
void RefuseToOverwrite(const std::filesystem::path& input, const std::filesystem::path& output);

/// Says that the display cannot draw `characters` of `text`.
std::string NotDrawn(const std::string& text, const std::vector<std::string>& characters);

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_SESSION_H_
