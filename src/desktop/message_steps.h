#ifndef VENDLINGUA_DESKTOP_MESSAGE_STEPS_H_
#define VENDLINGUA_DESKTOP_MESSAGE_STEPS_H_

#include <QKeyEvent>
#include <QObject>
#include <QWidget>
#include <cstddef>

#include "core/engine.h"
#include "core/platform/dialogs.h"
#include "desktop/run_command.h"

namespace vendlingua {

/// Leads a window from message to message by keys.
class MessageSteps : public QObject {
  Q_OBJECT

 public:
  /// With Ctrl+G, and Ctrl+Up and Ctrl+Down for what is to do.
  MessageSteps(Engine& engine, Dialogs& dialogs, RunCommand run, QWidget& window);

  /// Page Up and Page Down, Alt with the arrows, Ctrl+Home and Ctrl+End lead on, too.
  void AddPageKeys();

  /// Whether a key leads on although an edit box knows it.
  static bool LeadsOn(const QKeyEvent& event);

  void GoToNextToDo();

  /// Asks for the number of a message and shows it.
  void AskForMessage();

 private:
  void AddKey(QKeyCombination key, void (MessageSteps::*go)());
  void GoTo(std::size_t message);
  void GoBack();
  void GoForward();
  void GoToFirst() { GoTo(0); }
  void GoToLast();
  void GoToPreviousToDo();
  bool CanGo() const { return engine_.workspace.set.phase >= Phase::kOriginChosen; }

  Engine& engine_;
  Dialogs& dialogs_;
  RunCommand run_;
  QWidget& window_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_MESSAGE_STEPS_H_
