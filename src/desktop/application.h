#ifndef VENDLINGUA_DESKTOP_APPLICATION_H_
#define VENDLINGUA_DESKTOP_APPLICATION_H_

#include <QApplication>
#include <string>

namespace vendlingua {

/// The application object. A command shows by itself what it throws; what any other handler throws
/// is shown here, and the program goes on: there may be edits to save.
class Application : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  /// Shows the box when the handler has ended. While one waits or is shown, the next ones only go
  /// to the log: a handler that always fails must not bury the screen.
  void Report(const std::string& failure);

  bool reporting_ = false;
};

/// Shows why the program could not do something, in a critical box.
void ShowFailure(const std::string& failure);

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_APPLICATION_H_
