#ifndef VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_WRITER_H_
#define VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_WRITER_H_

#include <filesystem>
#include <optional>
#include <string>

#include "core/document/name_field.h"
#include "core/document/workspace.h"
#include "core/operations/editing.h"
#include "core/operations/message_file_change.h"
#include "core/operations/message_file_reader.h"
#include "core/platform/dialogs.h"

namespace vendlingua {

/// How a save ended. Most failures are not shown in a box of their own: the window tells the reason
/// in its status line, the command line on stderr.
struct SaveOutcome {
  enum Result { kSaved, kNothingWritten, kFailed };
  Result result = kSaved;
  std::string reason;  ///< of a failure
};

/// Stores the set back into the open message file. But for a new file and a copy, it patches in
/// place: the header fields that can change and the one language that is being edited.
class MessageFileWriter {
 public:
  MessageFileWriter(Workspace& workspace, Dialogs& dialogs, Editing& editing,
                    MessageFileReader& reader);

  /// Menu File, Save. Asks for a name when the language is new, for a file when no destination has
  /// been opened yet.
  SaveOutcome Save();

  /// Menu File, Save As: writes a copy of the open file with the edits and opens that. What others
  /// saved since the file was read is in the copy, too, while nothing has to be decided about it;
  /// otherwise, and when the file is gone or another one by now, the copy is made of what was read.
  /// Throws FileError when the copy fails; the old file then stays open.
  SaveOutcome SaveAs();

  /// The sections of an import become the languages of a new file, one by one: asks for the name of
  /// the next one and, the first time, for the file. Nothing is written before WriteImported(); the
  /// set holds the content until then.
  SaveOutcome AddImportedLanguage();

  /// Writes the file of an import. Throws FileError.
  void WriteImported();

  /// Offers to save pending changes, also those of a save that failed: Yes saves, No drops the
  /// mark. False when the save failed, so that the caller stops before the edits are lost.
  bool NonSave();

 private:
  /// Where a copy goes; nothing when the open file is saved.
  using CopyPath = std::optional<std::filesystem::path>;

  SaveOutcome SaveUnderTrap();
  SaveOutcome Write(const CopyPath& copy);
  void TellSaved();
  std::uint8_t HeaderFlags() const;
  std::filesystem::path AskSavePath();

  SaveOutcome WriteNewMes(const std::optional<NameField>& new_name, const CopyPath& copy);
  void BeginNewMes(const std::filesystem::path& path, const std::optional<NameField>& new_name);
  void PatchMes(const std::optional<NameField>& new_name, const CopyPath& copy);
  void PatchMsx(const CopyPath& copy);
  void Patch(const CopyPath& copy, const PatchBuilder& build);
  void WriteCopy(const std::filesystem::path& copy, const PatchBuilder& build);

  Workspace& workspace_;
  Dialogs& dialogs_;
  Editing& editing_;
  MessageFileReader& reader_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_WRITER_H_
