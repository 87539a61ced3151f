#ifndef VENDLINGUA_DESKTOP_DESK_LANGUAGE_JOBS_H_
#define VENDLINGUA_DESKTOP_DESK_LANGUAGE_JOBS_H_

#include <QWidget>
#include <filesystem>

#include "core/engine.h"
#include "core/platform/dialogs.h"
#include "desktop/desk/preview_dialog.h"

namespace vendlingua {

/// What is done with a whole language of the file. Errors are thrown; how a job ended is the
/// status.
class LanguageJobs {
 public:
  /// Previews are shown above `parent`.
  LanguageJobs(Engine& engine, Dialogs& dialogs, QWidget& parent);

  /// Shows what a language of the same name says in another file, and takes what is checked.
  void Compare(int language);

  /// Writes the sheet that a native speaker reads, and opens it in the browser.
  void Proof(int language);

  /// Writes a table to translate: XLIFF, or comma-separated values.
  void Export(int language);

  /// Shows what such a table would change, and takes what is checked.
  void Import(int language);

 private:
  MessageTexts CurrentTexts(int language) const;
  int Origin() const;
  std::filesystem::path AskForTable();
  void Tell(const UiSentence& sentence);
  bool OpenAsDestination(int language);
  void TakeFrom(const Preview& preview);

  Engine& engine_;
  Dialogs& dialogs_;
  Workspace& workspace_;
  QWidget& parent_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_LANGUAGE_JOBS_H_
