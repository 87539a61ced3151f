#ifndef VENDLINGUA_CORE_OPERATIONS_LANGUAGES_H_
#define VENDLINGUA_CORE_OPERATIONS_LANGUAGES_H_

#include "core/document/workspace.h"
#include "core/operations/message_file_writer.h"
#include "core/platform/dialogs.h"

namespace vendlingua {

/// How the choice of a destination ended.
enum class DestinationOutcome {
  kOpened,
  kNothingChosen,  ///< entry 0, which has no effect of its own, or a language that the file is
                   ///< without since it was saved first
  kNotSaved,       ///< pending changes could not be saved: they stay in the set
  kFileIsFull,     ///< the user was told that no further language can be added
};

/// Chooses the language that is translated from and the one that is translated into.
class Languages {
 public:
  Languages(Workspace& workspace, Dialogs& dialogs, MessageFileWriter& writer);

  /// `mnuori`(language): takes the origin texts from the open file, or from the built-in table for
  /// entry 0 of a ".MSX" file. Throws Error when they cannot be read.
  void ChooseOrigin(int language);

  /// `mnuDes`(language): offers to save pending changes and takes the destination texts from the
  /// open file. Throws Error when they cannot be read or are wider than can be edited.
  DestinationOutcome ChooseDestination(int language);

  /// `mnuNew`(language): starts a new destination language from the texts of `language`, or blank
  /// for entry 0. Otherwise as ChooseDestination.
  DestinationOutcome StartNewLanguage(int language);

  /// `mnuNewLanguage`: asks for a name and starts a blank language of that name, which gets its
  /// place in the file when it is saved. Otherwise as ChooseDestination.
  DestinationOutcome StartNamedLanguage();

 private:
  DestinationOutcome Open(int language, bool as_new);
  void RequireEditableWidth() const;

  Workspace& workspace_;
  Dialogs& dialogs_;
  MessageFileWriter& writer_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_LANGUAGES_H_
