#ifndef VENDLINGUA_DESKTOP_SUDDEN_END_H_
#define VENDLINGUA_DESKTOP_SUDDEN_END_H_

#include <QObject>
#include <functional>

namespace vendlingua {

/// What is done before the program is ended from outside: by SIGTERM, SIGHUP or SIGINT, whatever
/// window or box is open, or by the end of the desktop session. It then ends at once, without a
/// question, and within two seconds whatever it was doing. There is one at most.
class SuddenEnd : public QObject {
  Q_OBJECT

 public:
  explicit SuddenEnd(std::function<void()> before);

 private:
  void WatchSignals();
  void Take();

  std::function<void()> before_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_SUDDEN_END_H_
