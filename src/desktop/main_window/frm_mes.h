#ifndef VENDLINGUA_DESKTOP_MAIN_WINDOW_FRM_MES_H_
#define VENDLINGUA_DESKTOP_MAIN_WINDOW_FRM_MES_H_

#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <memory>

#include "core/engine.h"
#include "core/platform/program_starter.h"
#include "core/presentation/window_top.h"
#include "desktop/compiler/frm_make.h"
#include "desktop/desk/frm_desk.h"
#include "desktop/dialogs/qt_dialogs.h"
#include "desktop/dialogs/qt_texts.h"
#include "desktop/information/frm_info.h"
#include "desktop/main_window/edit_keeper.h"
#include "desktop/main_window/editor_panel.h"
#include "desktop/main_window/file_watch.h"
#include "desktop/main_window/main_menus.h"
#include "desktop/message_steps.h"
#include "desktop/postponed_close.h"

namespace vendlingua {

/// The main window. It passes every command on to the engine and then shows what the engine's state
/// has become.
class FrmMes : public QMainWindow {
  Q_OBJECT

 public:
  FrmMes(Engine& engine, QtDialogs& dialogs, ProgramStarter& starter);

  /// Brings the journal of unsaved edits up to date now; otherwise that happens half a second after
  /// an edit.
  void KeepEdits() { edit_keeper_.Keep(); }

  /// Opens a file as File, Open does once it is chosen.
  void OpenFile(const std::filesystem::path& file);

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void ConnectMenus();
  void ConnectPanel();

  /// Does what the user asked for. The one place where errors are shown.
  void Run(const std::function<void()>& command) { RunIn(*this, command); }
  /// The same for a command that belongs to `window`.
  void RunIn(QWidget& window, const std::function<void()>& command);
  /// Makes the windows show the state of the engine.
  void Mirror();
  /// Another program may have changed the open file.
  void LookAtFile();

  void OfferEdits(OpenOutcome outcome);
  void Form_Activate();
  void ChooseLanguage(int index);
  void ChangeText(const DisplayCodes& text);
  void ToggleHeight();
  void ShowDetails();
  int HeightOnScreen(int wanted) const;
  void OpenCompiler();
  void OpenDesk();
  void OpenInfo();

  Engine& engine_;
  QtDialogs& dialogs_;
  ProgramStarter& starter_;
  MainMenus* menus_;
  EditorPanel* panel_;
  MessageSteps* steps_;
  UiText captions_;                    ///< of the editor
  std::unique_ptr<FrmDesk> frm_desk_;  ///< from when it is opened first
  QPointer<FrmMake> frm_make_;
  QPointer<FrmInfo> frm_info_;
  QtTexts qt_texts_;
  PostponedClose closing_{*this};
  FileWatch file_watch_;
  WindowTop window_top_;
  QTimer typing_pause_;
  EditKeeper edit_keeper_;
  int dialogs_seen_ = 0;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_MAIN_WINDOW_FRM_MES_H_
