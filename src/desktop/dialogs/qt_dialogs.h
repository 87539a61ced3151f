#ifndef VENDLINGUA_DESKTOP_DIALOGS_QT_DIALOGS_H_
#define VENDLINGUA_DESKTOP_DIALOGS_QT_DIALOGS_H_

#include <QElapsedTimer>
#include <QWidget>
#include <functional>

#include "core/platform/dialogs.h"
#include "core/texts/english_texts.h"
#include "core/texts/ui_text.h"

namespace vendlingua {

/// The dialogs of the desktop. Each belongs to the window whose command asks, whatever window is
/// active at that moment: after a dialog some desktops make none active for a while.
class QtDialogs : public Dialogs {
 public:
  /// While it lives, dialogs belong to `window`, whose command runs: so long it is not deleted.
  class Owner {
   public:
    Owner(QtDialogs& dialogs, QWidget& window) : dialogs_(dialogs), before_(dialogs.owner_) {
      dialogs_.owner_ = &window;
    }
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;
    ~Owner() { dialogs_.owner_ = before_; }

   private:
    QtDialogs& dialogs_;
    QWidget* before_;
  };

  /// Before a dialog opens and before window events run, `refresh` is called, so that the windows
  /// show how far the operation came. Buttons are captioned from `ui_text`.
  void Attach(std::function<void()> refresh, const UiText& ui_text);

  /// How many dialogs were opened so far: who compares it knows whether it was a dialog of ours
  /// that took the focus away.
  int opened() const { return opened_; }

  MessageAnswer MessageBox(const MessageRequest& request) override;
  std::string InputBox(const InputRequest& request) override;
  std::optional<std::filesystem::path> OpenFile(const FileRequest& request) override;
  std::optional<std::filesystem::path> SaveFile(const FileRequest& request) override;
  std::vector<ConflictAnswer> ResolveConflicts(const ConflictRequest& request) override;
  void LetPendingEventsRun() override;

 private:
  void BeforeDialog();
  const UiText& ui_text() const { return *ui_text_; }

  QWidget* owner_ = nullptr;
  std::function<void()> refresh_;
  const UiText* ui_text_ = &EnglishTexts();
  int opened_ = 0;
  QElapsedTimer since_events_ran_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DIALOGS_QT_DIALOGS_H_
