#ifndef VENDLINGUA_CLI_COMMANDS_H_
#define VENDLINGUA_CLI_COMMANDS_H_

#include <optional>
#include <string>
#include <vector>

#include "cli/session.h"

// The commands and what the command line says for them; files are paths as they were given. Each
// throws CommandFailed, WrongUsage or Error when it cannot be done.

namespace vendlingua::cli {

struct InfoOptions {
  std::string file;
};

/// Shows dimensions and languages of a message file.
void RunInfo(Session& session, const InfoOptions& options);

struct TextsOptions {
  std::string file;
  int language = 0;
};

/// Shows all messages of one language.
void RunTexts(Session& session, const TextsOptions& options);

struct PutOptions {
  std::string file;
  int language = 0;
  int message = 0;
  std::optional<std::string> text;  ///< UTF-8; either this or `hex` is given
  std::optional<std::string> hex;   ///< display codes
};

/// Changes one message and saves the file in place.
void RunPut(Session& session, const PutOptions& options);

struct NewLanguageOptions {
  std::string file;
  std::optional<int> from;  ///< nothing: blank texts
  std::string name;
};

/// Adds a language to a ".MES" file.
void RunNewLanguage(Session& session, const NewLanguageOptions& options);

struct ExportOptions {
  std::string file;
  int language = 0;
  int origin = 0;
  std::string output;
};

/// Writes the messages of a language as a table.
void RunExport(Session& session, const ExportOptions& options);

struct ApplyOptions {
  std::string file;
  int language = 0;
  std::string table;
};

/// Takes the texts of a table into a language and saves the file in place.
void RunApply(Session& session, const ApplyOptions& options);

struct ImportOptions {
  std::string source;
  // Numbers as the input boxes of the engine take them.
  std::string languages;
  std::string language_message;  ///< empty when not given
  std::string memory_start;
  std::string memory_length;
  std::vector<std::string> names;
  std::string output;
};

/// Makes a ".MES" file of an assembler source.
void RunImport(Session& session, const ImportOptions& options);

struct CompileOptions {
  std::string file;
  std::vector<int> languages;
  std::string output;
  std::string copy;
};

/// Compiles languages into flash files.
void RunCompile(Session& session, const CompileOptions& options);

struct SectionsOptions {
  std::string file;
  std::string output;
};

/// Cuts a flash file into section files.
void RunSections(Session& session, const SectionsOptions& options);

/// Says whether files are sound.
void RunVerify(Session& session, const std::vector<std::string>& files);

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_COMMANDS_H_
