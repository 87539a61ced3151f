#ifndef VENDLINGUA_DESKTOP_COMPILER_FRM_MAKE_H_
#define VENDLINGUA_DESKTOP_COMPILER_FRM_MAKE_H_

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QWidget>
#include <array>
#include <functional>

#include "core/document/workspace.h"
#include "core/flash/compiler_state.h"
#include "core/flash/flash_compiler.h"
#include "core/operations/message_file_writer.h"
#include "core/platform/dialogs.h"
#include "desktop/postponed_close.h"
#include "desktop/run_command.h"

namespace vendlingua {

/// What the compiler window works on.
struct CompilerParts {
  Workspace& workspace;
  CompilerState& state;
  FlashCompiler& compiler;
  MessageFileWriter& writer;
  Dialogs& dialogs;
};

/// The flash compiler window: which languages go into the flash file, what they are called, and the
/// compilation itself.
class FrmMake : public QWidget {
  Q_OBJECT

 public:
  FrmMake(const CompilerParts& parts, RunCommand run, QWidget* main_window);

  /// Offers to save pending changes and fills the window with the languages of the open file. False
  /// when the changes could not be saved.
  bool Load();

  /// Shows the state of the compiler.
  void Mirror();

 signals:
  /// The window became the active one.
  void Activated();

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// Two pages; entries 1 to 50 and 51 to 100.
  static constexpr std::size_t kPages = 2;
  static constexpr std::size_t kPageEntries = 50;

  void BuildEntries();
  void BuildButtons();
  void OrderTabStops();
  void LayOutPages();
  void LayOutPage(std::size_t page);
  void RenameFocused();
  void Rename(int language);
  void Tick(int language, bool ticked);
  void Compile();
  void Run(const std::function<void()>& command);

  CompilerParts parts_;
  RunCommand run_;
  PostponedClose closing_{*this};
  QTabWidget* SSTab1_;
  QFrame* Shape1_;
  QPushButton* Command1_;
  QPushButton* Command2_;
  QLabel* status_;
  std::size_t languages_laid_out_ = 0;
  std::array<QWidget*, kPages> pages_{};
  std::array<QCheckBox*, kLanguageEntries> Check1_{};
  std::array<QLabel*, kLanguageEntries> Label1_{};
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_COMPILER_FRM_MAKE_H_
