#ifndef VENDLINGUA_DESKTOP_MAIN_WINDOW_FILE_WATCH_H_
#define VENDLINGUA_DESKTOP_MAIN_WINDOW_FILE_WATCH_H_

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <cstdint>
#include <filesystem>
#include <optional>

namespace vendlingua {

/// Tells when the open file may not be any more what it was: somebody wrote into it, replaced or
/// removed it. Who wrote is not known here, so that own saves are told of, too.
class FileWatch : public QObject {
  Q_OBJECT

 public:
  FileWatch();

  /// Watches `file` from now on, none when the path is empty. Another one than before is told of
  /// once, because it may have changed since it was read.
  void Follow(const std::filesystem::path& file);

  /// Tells once more, in a moment.
  void LookAgain();

 signals:
  void Changed();

 private:
  /// What a change of the file changes at least one of.
  struct State {
    std::filesystem::file_time_type written;
    std::uintmax_t size;

    bool operator==(const State&) const = default;
  };

  std::optional<State> CurrentState() const;
  void Look();
  void WatchAgain();

  QFileSystemWatcher watcher_;
  QTimer pause_;
  std::filesystem::path file_;
  std::optional<State> told_;  ///< nothing of a file that is not there
  bool must_tell_ = false;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_MAIN_WINDOW_FILE_WATCH_H_
