#ifndef VENDLINGUA_TESTS_GUI_SUPPORT_RUNNING_PROGRAM_H_
#define VENDLINGUA_TESTS_GUI_SUPPORT_RUNNING_PROGRAM_H_

#include <QAction>
#include <QApplication>
#include <QString>
#include <filesystem>
#include <memory>
#include <vector>

#include "core/engine.h"
#include "core/platform/font_list.h"
#include "core/platform/program_starter.h"
#include "desktop/compiler/frm_make.h"
#include "desktop/desk/frm_desk.h"
#include "desktop/dialogs/qt_dialogs.h"
#include "desktop/information/frm_info.h"
#include "desktop/main_window/frm_mes.h"

namespace vendlingua::test {

/// Notes what is started instead of starting it.
class NotedStarts : public ProgramStarter {
 public:
  std::vector<std::filesystem::path> programs;

  void Start(const std::filesystem::path& program) override { programs.push_back(program); }
};

/// The real program in one process: started from `folder`, where its language files lie, and driven
/// by the names of its controls.
class RunningProgram {
 public:
  enum class Start { kNow, kLater };

  /// Copies the interface languages into `folder` and starts the program there. Later means by
  /// Load() and Show().
  explicit RunningProgram(const std::filesystem::path& folder, Start start = Start::kNow);
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;
  ~RunningProgram();

  /// What happens before the main window is shown. False when the program refuses to start.
  bool Load(const FontList& fonts);
  bool Load();
  void Show();

  Engine& engine() { return engine_; }
  Workspace& workspace() { return engine_.workspace; }
  MessageSet& set() { return engine_.workspace.set; }
  FrmMes& window() { return *window_; }
  NotedStarts& starts() { return starts_; }

  /// The windows that the menus open; null while they are not open.
  FrmMake* compiler() { return window_->findChild<FrmMake*>(); }
  FrmInfo* info() { return window_->findChild<FrmInfo*>(); }

  /// The translator's desk, once it was opened.
  FrmDesk& desk();

  /// A control of the desk.
  template <typename Control>
  Control& GetInDesk(const char* name) {
    return GetIn<Control>(desk(), name);
  }

  /// A control of the main window.
  template <typename Control>
  Control& Get(const char* name) {
    return GetIn<Control>(*window_->centralWidget(), name);
  }

  /// A control of the compiler window.
  template <typename Control>
  Control& GetInCompiler(const char* name) {
    return GetIn<Control>(*compiler(), name);
  }

  QAction& Entry(const char* name) { return *window_->findChild<QAction*>(QLatin1String(name)); }

  /// Chooses a menu entry; nothing when it is disabled or hidden, as for a user.
  void Choose(const char* name);

  /// Tells a menu that it opens, without the popup that would wait for the mouse.
  void OpenMenu(const char* name);

 private:
  template <typename Control>
  static Control& GetIn(QWidget& parent, const char* name) {
    auto* control = parent.findChild<Control*>(QLatin1String(name));
    if (control == nullptr) {
      qFatal("there is no control %s", name);
    }
    return *control;
  }

  QtDialogs dialogs_;
  Engine engine_;
  NotedStarts starts_;
  std::unique_ptr<FrmMes> window_;
};
}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_GUI_SUPPORT_RUNNING_PROGRAM_H_
