#ifndef VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_READER_H_
#define VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_READER_H_

#include <string>
#include <vector>

#include "core/document/workspace.h"
#include "core/operations/editing_view.h"
#include "core/platform/dialogs.h"

namespace vendlingua {

/// Reads the dimensions and the language names of a message file into the set and the menus. The
/// message texts are read when an origin or a destination is chosen.
class MessageFileReader {
 public:
  MessageFileReader(Workspace& workspace, Dialogs& dialogs, EditingView& editing_view);

  /// Makes the window and the set forget the file that was open, before a ".MES" file or a source
  /// named `title` is read.
  void ResetForMes(const std::string& title);

  /// Resets the window and the set for a ".MSX" file named `title` and reads it. False when it
  /// belongs to a firmware that is not managed: the user was told and no language is shown.
  bool OpenMsxFile(const std::string& title);

  /// Reads `CurrentFileName` according to `CurrentFileType`: sets the dimensions and the captions
  /// of the language menus. Returns as OpenMsxFile. Throws Error when the file cannot be taken; the
  /// set is then partly changed, and the caller puts it back.
  bool Reload();

 private:
  void Reset(const std::string& title);
  void ReloadMes();
  bool ReloadMsx();
  void EnableLoadedMenus();

  Workspace& workspace_;
  Dialogs& dialogs_;
  EditingView& editing_view_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_MESSAGE_FILE_READER_H_
