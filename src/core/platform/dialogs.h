#ifndef VENDLINGUA_CORE_PLATFORM_DIALOGS_H_
#define VENDLINGUA_CORE_PLATFORM_DIALOGS_H_

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace vendlingua {

enum class MessageIcon { kCritical, kExclamation, kInformation, kQuestion };
enum class MessageButtons { kOk, kYesNo };
enum class MessageAnswer { kOk, kYes, kNo };

/// A modal message box. All texts are UTF-8. Without a title it has that of the program.
struct MessageRequest {
  MessageIcon icon = MessageIcon::kInformation;
  std::string text;
  std::string title;
  MessageButtons buttons = MessageButtons::kOk;
};

/// What an input box asks for, so that an answer can be chosen without reading the prompt.
enum class InputPurpose {
  kLanguageCount,
  kLanguageMessage,
  kMemoryStart,
  kMemoryLength,
  kNewLanguageName,
  kRenamedLanguageName,
  kMessageNumber,
};

struct InputRequest {
  InputPurpose purpose;
  std::string prompt;
  std::string title;
  std::string default_answer;
};

enum class FilePurpose {
  kOpenMessages,
  kSaveMessages,
  kFlashFile,
  kIdentifiedCopy,
  kPicture,
  kTable
};

/// The files that a file dialog offers: those with `extension`, in upper or lower case.
struct FileFilter {
  std::string caption;    ///< what these files are, without a pattern
  std::string extension;  ///< without dot

  bool operator==(const FileFilter&) const = default;
};

/// A file dialog. `initial_name` is also what an unanswered dialog may return. The folder of the
/// answer is there: the dialog asks on until it is.
struct FileRequest {
  FilePurpose purpose;
  std::string title;  ///< empty: what the desktop calls such a dialog
  std::string initial_name;
  std::string default_extension;  ///< without dot; empty for an open dialog
  std::vector<FileFilter> filters;
  bool must_exist = false;  ///< only a file that is there can be chosen
  bool overwrite_prompt = false;
  std::filesystem::path folder;  ///< where the dialog starts
};

/// A message, or the name of a language, that was changed here and by another program since the
/// file was read.
struct EditConflict {
  int language;
  std::string language_name;           ///< UTF-8, as it is here
  std::optional<std::size_t> message;  ///< nothing: the language's name
  std::vector<std::uint8_t> mine;      ///< display codes
  std::vector<std::uint8_t> theirs;    ///< the same, as they stand in the file

  bool operator==(const EditConflict&) const = default;
};

enum class ConflictAnswer { kKeepMine, kTakeTheirs };

/// Asks which of two changes counts. `questions` has a sentence for each conflict; the texts are in
/// the display's own alphabet `display`.
struct ConflictRequest {
  std::vector<EditConflict> conflicts;
  std::vector<std::string> questions;
  std::string title;
  std::string keep_mine;    ///< caption of the button
  std::string take_theirs;  ///< the same
  std::size_t display = 0;
};

/// What the operations ask the user on their way. The windows answer with real dialogs, the command
/// line with its options, a test with a script. All texts are UTF-8.
class Dialogs {
 public:
  Dialogs() = default;
  Dialogs(const Dialogs&) = delete;
  Dialogs& operator=(const Dialogs&) = delete;
  virtual ~Dialogs() = default;

  virtual MessageAnswer MessageBox(const MessageRequest& request) = 0;

  /// The typed answer; empty when it was cancelled.
  virtual std::string InputBox(const InputRequest& request) = 0;

  /// The chosen path; nothing when it was cancelled.
  virtual std::optional<std::filesystem::path> OpenFile(const FileRequest& request) = 0;
  virtual std::optional<std::filesystem::path> SaveFile(const FileRequest& request) = 0;

  /// An answer for each conflict; none at all when they are left undecided.
  virtual std::vector<ConflictAnswer> ResolveConflicts(const ConflictRequest& request) = 0;

  /// Lets waiting window events run once, so that a long operation does not freeze the screen.
  virtual void LetPendingEventsRun() = 0;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_DIALOGS_H_
