#ifndef VENDLINGUA_CORE_OPERATIONS_LANGUAGES_H_
#define VENDLINGUA_CORE_OPERATIONS_LANGUAGES_H_

#include "core/document/workspace.h"
#include "core/operations/editor_view.h"
#include "core/operations/message_file_writer.h"
#include "core/platform/dialogs.h"

namespace vendlingua {

/// Chooses the language that is translated from and the one that is translated into.
class Languages {
 public:
  Languages(Workspace& workspace, Dialogs& dialogs, EditorView& view, MessageFileWriter& writer);

  /// `mnuori`(language): takes the origin texts from the open file, or from the built-in table for
  /// entry 0 of a ".MSX" file. Throws Error when they cannot be read.
  void ChooseOrigin(int language);

  /// The `mnuDest` menu opens: a file with 100 languages takes no new one, a ".MSX" file never
  /// does.
  void OpenDestinationMenu();

  /// `mnuDes`(language): offers to save pending changes and takes the destination texts from the
  /// open file; entry 0 does nothing. Throws Error when they cannot be read. False when the
  /// language was not opened.
  bool ChooseDestination(int language);

  /// `mnuNew`(language): starts a new destination language from the texts of `language`, or blank
  /// for entry 0.
  void StartNewLanguage(int language);

 private:
  void EnableEditing();

  Workspace& workspace_;
  Dialogs& dialogs_;
  EditorView& view_;
  MessageFileWriter& writer_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_LANGUAGES_H_
