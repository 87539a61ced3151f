#ifndef VENDLINGUA_DESKTOP_DESK_FRM_DESK_H_
#define VENDLINGUA_DESKTOP_DESK_FRM_DESK_H_

#include <QComboBox>
#include <QLabel>
#include <QSplitter>
#include <QWidget>
#include <functional>
#include <string>

#include "core/desk/live_findings.h"
#include "core/desk/second_reference.h"
#include "core/engine.h"
#include "desktop/desk/desk_side.h"
#include "desktop/desk/desk_table.h"
#include "desktop/desk/find_bar.h"
#include "desktop/desk/finder.h"
#include "desktop/desk/second_reference_box.h"
#include "desktop/message_steps.h"
#include "desktop/run_command.h"

namespace vendlingua {

/// The translator's desk: all messages of the document in one window, beside the main window. While
/// it is closed it shows nothing new.
class FrmDesk : public QWidget {
  Q_OBJECT

 public:
  FrmDesk(Engine& engine, Dialogs& dialogs, RunCommand run);

  /// Shows the document.
  void Mirror();

 signals:
  /// The current message was edited in its row.
  void TextTyped(const DisplayCodes& text);

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void LayOut();
  void ConnectTable();
  void ConnectFinder();
  void AddShortcuts();
  void SetCaptions();
  void Restore();
  void Store() const;

  void GoTo(std::size_t message);
  void Filter(int filter);
  void ChooseSecondReference(const std::string& name);
  void Replace();
  void Tell(const std::string& status);
  void Run(const std::function<void()>& command) { run_(command, *this); }

  Engine& engine_;
  Dialogs& dialogs_;
  Workspace& workspace_;
  RunCommand run_;
  LiveFindings findings_;
  DocumentMarks marks_;
  SecondReference second_;
  FindBar* find_bar_;
  QComboBox* filter_;
  SecondReferenceBox* second_box_;
  QSplitter* parts_;
  DeskTable* table_;
  Finder* finder_;
  MessageSteps* steps_;
  DeskSide* side_;
  QLabel* status_;
  QLabel* progress_;
  UiText captions_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_FRM_DESK_H_
