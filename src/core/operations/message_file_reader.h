#ifndef VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_READER_H_
#define VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_READER_H_

#include <string>

#include "core/document/workspace.h"
#include "core/platform/dialogs.h"

namespace vendlingua {

/// Reads the dimensions and the language names of a message file into the set. The message texts
/// are read when an origin or a destination is chosen.
class MessageFileReader {
 public:
  MessageFileReader(Workspace& workspace, Dialogs& dialogs);

  /// Makes the set forget the file that was open, before a ".MES" file or a source is read.
  void ResetForMes();

  /// Resets the set for a ".MSX" file and reads it. False when it belongs to a firmware that is not
  /// managed: the user was told and no language is shown.
  bool OpenMsxFile();

  /// Reads `CurrentFileName` according to `CurrentFileType`: sets the dimensions and the names of
  /// the languages. Returns as OpenMsxFile. Throws Error when the file cannot be taken; the set is
  /// then partly changed, and the caller puts it back.
  bool Reload();

  /// The same of a file whose content is given.
  bool Load(std::string content);

 private:
  void Reset();

  Workspace& workspace_;
  Dialogs& dialogs_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_READER_H_
