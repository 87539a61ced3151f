#ifndef VENDLINGUA_CORE_DOCUMENT_WORKSPACE_H_
#define VENDLINGUA_CORE_DOCUMENT_WORKSPACE_H_

#include <filesystem>
#include <string>

#include "core/document/message_set.h"
#include "core/presentation/menu_state.h"
#include "core/presentation/view_state.h"
#include "core/texts/ui_text.h"

namespace vendlingua {

/// The folders that operations work in. They are kept here and not in the process, so that a path
/// given on the command line keeps its meaning.
struct Folders {
  std::filesystem::path program;   ///< of the executable; language files and settings lie there
  std::filesystem::path current;   ///< where dialogs start and identified copies go
  std::filesystem::path settings;  ///< the settings file, beside the program
  std::filesystem::path user_settings;  ///< the same where that folder is read-only
};

/// Everything that one program run knows. main() owns the one instance and hands it down by
/// reference.
struct Workspace {
  MessageSet set;
  MenuState menus;
  ViewState view;
  UiText ui_text;
  /// Name of the interface language in use: the base name of its file.
  std::string LanguageName;
  Folders folders;
  /// The open file as it was last read or written.
  std::string file_content;
};

/// Puts the set, the menus and the view back as they were, unless the operation says that it
/// succeeded: a file that cannot be loaded must leave the program as it was.
class Rollback {
 public:
  explicit Rollback(Workspace& workspace)
      : workspace_(workspace),
        set_(workspace.set),
        menus_(workspace.menus),
        view_(workspace.view) {}
  Rollback(const Rollback&) = delete;
  Rollback& operator=(const Rollback&) = delete;

  ~Rollback() {
    if (!kept_) {
      std::swap(workspace_.set, set_);
      std::swap(workspace_.menus, menus_);
      std::swap(workspace_.view, view_);
    }
  }

  void Keep() { kept_ = true; }

 private:
  Workspace& workspace_;
  MessageSet set_;
  MenuState menus_;
  ViewState view_;
  bool kept_ = false;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DOCUMENT_WORKSPACE_H_
