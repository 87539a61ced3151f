#ifndef VENDLINGUA_CORE_PLATFORM_DIALOGS_H_
#define VENDLINGUA_CORE_PLATFORM_DIALOGS_H_

#include <filesystem>
#include <string>

namespace vendlingua {

enum class MessageIcon { kCritical, kExclamation, kInformation, kQuestion };
enum class MessageButtons { kOk, kYesNo };
enum class MessageAnswer { kOk, kYes, kNo };

/// A modal message box. All texts are UTF-8.
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
};

struct InputRequest {
  InputPurpose purpose;
  std::string prompt;
  std::string title;
  std::string default_answer;
};

enum class FilePurpose { kOpenMessages, kSaveMessages, kFlashFile, kIdentifiedCopy };

/// A file dialog. `initial_name` is also what an unanswered dialog may return.
struct FileRequest {
  FilePurpose purpose;
  std::string initial_name;
  std::string default_extension;  ///< without dot; empty for an open dialog
  std::string filter;             ///< "Caption|*.EXT|Caption|*.EXT"
  bool overwrite_prompt = false;
  std::filesystem::path folder;  ///< where the dialog starts
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

  /// The chosen path; empty when it was cancelled.
  virtual std::filesystem::path OpenFile(const FileRequest& request) = 0;
  virtual std::filesystem::path SaveFile(const FileRequest& request) = 0;

  /// Lets waiting window events run once, so that a long operation does not freeze the screen.
  virtual void LetPendingEventsRun() = 0;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_DIALOGS_H_
