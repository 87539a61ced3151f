#ifndef VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_WRITER_H_
#define VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_WRITER_H_

#include <optional>
#include <string>

#include "core/document/name_field.h"
#include "core/document/workspace.h"
#include "core/operations/editing.h"
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

/// Stores the set back into the open message file. But for a new file, it patches in place: the
/// header fields that can change and the one language that is being edited.
class MessageFileWriter {
 public:
  MessageFileWriter(Workspace& workspace, Dialogs& dialogs, Editing& editing,
                    MessageFileReader& reader);

  /// Menu File, Save. Asks for a name when the language is new, for a file when no destination has
  /// been opened yet.
  SaveOutcome Save();

  /// Menu File, Save As: copies the open file, or what it was when that is gone, and saves into the
  /// copy. Throws FileError when the copy fails; the old file then stays open.
  SaveOutcome SaveAs();

  /// Offers to save pending changes, also those of a save that failed: Yes saves, No drops the
  /// mark. False when the save failed, so that the caller stops before the edits are lost.
  bool NonSave();

 private:
  SaveOutcome SaveUnderTrap();
  SaveOutcome Write(const std::optional<NameField>& new_name);
  NameField AskNewLanguageName();
  bool NameIsTaken(const NameField& name) const;
  std::uint8_t HeaderFlags() const;
  std::filesystem::path AskSavePath();

  SaveOutcome WriteNewMes(const std::optional<NameField>& new_name);
  void PatchMes(const std::optional<NameField>& new_name);
  void WriteMesBlock(const NameField& name);
  void PatchMsx();
  std::string ContentToCopy() const;

  Workspace& workspace_;
  Dialogs& dialogs_;
  Editing& editing_;
  MessageFileReader& reader_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_WRITER_H_
