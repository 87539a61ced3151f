#ifndef VENDLINGUA_CORE_DOCUMENT_WORKSPACE_H_
#define VENDLINGUA_CORE_DOCUMENT_WORKSPACE_H_

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/document/message_set.h"
#include "core/texts/ui_text.h"

namespace vendlingua {

/// The folders that operations work in. They are kept here and not in the process, so that a path
/// given on the command line keeps its meaning.
struct Folders {
  std::filesystem::path program;   ///< of the executable; language files and settings lie there
  std::filesystem::path current;   ///< where dialogs start and identified copies go
  std::filesystem::path settings;  ///< the settings file, beside the program
  std::filesystem::path user_settings;  ///< the same where that folder is read-only
  std::filesystem::path journals{};     ///< of unsaved edits; none are kept when it is empty
};

/// The interface languages that can be chosen: the names of their files.
struct InterfaceLanguages {
  static constexpr std::size_t kMost = 10;

  std::vector<std::string> names;  ///< UTF-8, at most 10
  std::optional<std::size_t> chosen;
};

/// What the main window shows and cannot be told from the message set. Sizes are in twips.
struct WindowState {
  static constexpr int kCompactHeight = 2925;
  static constexpr int kFullHeight = 8535;

  int height = kCompactHeight;
  /// What was typed into the edit box, blanks at its end and characters over placeholders included;
  /// nothing once another message, or the same one anew, is shown.
  std::optional<DisplayCodes> typed;
  /// The button for a new message is offered when the last message is paged to, and hides when it
  /// was used.
  bool offers_new_message = false;
  /// A ".MES" file that is read names entry 0 of the destination menus, until another interface
  /// language does.
  bool file_names_entry_0 = false;
  std::string status;  ///< how the last command ended, UTF-8
};

/// Everything that one program run knows. main() owns the one instance and hands it down by
/// reference.
struct Workspace {
  MessageSet set;
  WindowState window;
  UiText ui_text;
  /// Name of the interface language in use: the base name of its file.
  std::string LanguageName;
  InterfaceLanguages interface_languages;
  Folders folders;
  /// The user was told, once, that files of some folder cannot be kept safe as others are.
  bool told_of_missing_safety = false;
};

/// Puts the set and the window back as they were, unless the operation says that it succeeded: a
/// file that cannot be loaded must leave the program as it was.
class Rollback {
 public:
  explicit Rollback(Workspace& workspace)
      : workspace_(workspace), set_(workspace.set), window_(workspace.window) {}
  Rollback(const Rollback&) = delete;
  Rollback& operator=(const Rollback&) = delete;

  ~Rollback() {
    if (!kept_) {
      std::swap(workspace_.set, set_);
      std::swap(workspace_.window, window_);
    }
  }

  void Keep() { kept_ = true; }

 private:
  Workspace& workspace_;
  MessageSet set_;
  WindowState window_;
  bool kept_ = false;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DOCUMENT_WORKSPACE_H_
