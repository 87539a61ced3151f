#ifndef VENDLINGUA_DESKTOP_APPLICATION_H_
#define VENDLINGUA_DESKTOP_APPLICATION_H_

#include <QApplication>
#include <QString>

namespace vendlingua {

/// The application object. A command shows by itself what it throws; what any other handler throws
/// is shown here, and the program goes on: there may be edits to save. No text is markup: what
/// labels, boxes and tool tips show may come out of files and paths.
class Application : public QApplication {
  Q_OBJECT

 public:
  Application(int& argc, char** argv);

  bool notify(QObject* receiver, QEvent* event) override;

 signals:
  void Failed(const QString& failure);

 private:
  /// Lets the box wait until the handler has ended. While one waits or is shown, the next failures
  /// only go to the log: a handler that always fails must not bury the screen.
  void Report(const QString& failure);
  void Show(const QString& failure);

  bool reporting_ = false;
};

/// Shows why the program could not do something, in a critical box.
void ShowFailure(const QString& failure);

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_APPLICATION_H_
