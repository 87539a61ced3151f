#ifndef VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_OPENER_H_
#define VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_OPENER_H_

#include <filesystem>
#include <string>

#include "core/document/workspace.h"
#include "core/operations/message_file_reader.h"
#include "core/operations/message_file_writer.h"
#include "core/operations/source_import.h"
#include "core/platform/dialogs.h"

namespace vendlingua {

/// How File, Open ended.
enum class OpenOutcome {
  kOpened,
  kCancelled,  ///< no file was chosen, or one whose type is not known, which the status tells
  kRefused,    ///< the user was told why, or stopped an import: no language can be chosen
};

/// Asks for a message file, starting in `folder`. Empty when none was chosen.
std::filesystem::path AskForMessageFile(Dialogs& dialogs, const std::filesystem::path& folder);

/// Menu File, Open: one door for ".MSX" files, ".MES" files and assembler sources.
class MessageFileOpener {
 public:
  MessageFileOpener(Workspace& workspace, Dialogs& dialogs, MessageFileReader& reader,
                    MessageFileWriter& writer, SourceImport& import);

  /// Saves pending changes if the user wants it, asks for a file and opens it. Throws Error when
  /// the file cannot be opened; everything is then as it was.
  OpenOutcome Open();

  /// The same with a file that was chosen elsewhere.
  OpenOutcome Open(const std::filesystem::path& path);

  /// Imports the assembler source `path`, whatever its name. Otherwise as Open.
  OpenOutcome Import(const std::filesystem::path& path);

 private:
  OpenOutcome OpenPath(const std::filesystem::path& path, const std::string& type);
  bool OpenMesFile();

  Workspace& workspace_;
  Dialogs& dialogs_;
  MessageFileReader& reader_;
  MessageFileWriter& writer_;
  SourceImport& import_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_OPENER_H_
