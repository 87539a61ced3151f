#ifndef VENDLINGUA_DESKTOP_MAIN_WINDOW_EDIT_KEEPER_H_
#define VENDLINGUA_DESKTOP_MAIN_WINDOW_EDIT_KEEPER_H_

#include <QObject>
#include <QTimer>
#include <functional>

#include "core/engine.h"

namespace vendlingua {

/// Keeps the journal of unsaved edits up to date while the windows are used.
class EditKeeper : public QObject {
  Q_OBJECT

 public:
  /// `mirror` shows a status that has changed.
  EditKeeper(Engine& engine, std::function<void()> mirror);

  /// The document may have changed: the journal follows soon.
  void Follow();

  /// Brings the journal up to date now. That it cannot be written is told once, until it can be.
  void Keep();

 private:
  Engine& engine_;
  std::function<void()> mirror_;
  QTimer pause_;
  bool told_of_loss_ = false;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_MAIN_WINDOW_EDIT_KEEPER_H_
