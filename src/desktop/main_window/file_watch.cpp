#include "desktop/main_window/file_watch.h"

#include <QStringList>
#include <system_error>

#include "core/platform/folder_of.h"
#include "desktop/qt_path.h"

namespace vendlingua {
namespace {

// A save comes as several events.
constexpr int kPause = 100;  // milliseconds

}  // namespace

FileWatch::FileWatch() {
  pause_.setSingleShot(true);
  pause_.setInterval(kPause);
  connect(&pause_, &QTimer::timeout, this, &FileWatch::Look);
  const auto look_soon = [this] {
    if (!pause_.isActive()) {
      pause_.start();
    }
  };
  connect(&watcher_, &QFileSystemWatcher::fileChanged, this, look_soon);
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, look_soon);
}

void FileWatch::Follow(const std::filesystem::path& file) {
  if (file == file_) {
    return;
  }
  file_ = file;
  const QStringList watched = watcher_.files() + watcher_.directories();
  if (!watched.empty()) {
    watcher_.removePaths(watched);
  }
  if (file_.empty()) {
    pause_.stop();
    return;
  }
  WatchAgain();
  LookAgain();
}

void FileWatch::LookAgain() {
  must_tell_ = true;
  pause_.start();
}

// A file that was replaced is watched no more, and one that is gone comes back as another one: its
// folder tells of both.
void FileWatch::WatchAgain() {
  for (const std::filesystem::path& path : {file_, FolderOf(file_)}) {
    const QString name = ToQString(path);
    if (!watcher_.files().contains(name) && !watcher_.directories().contains(name)) {
      watcher_.addPath(name);
    }
  }
}

std::optional<FileWatch::State> FileWatch::CurrentState() const {
  std::error_code error;
  const auto written = std::filesystem::last_write_time(file_, error);
  const auto size = error ? 0 : std::filesystem::file_size(file_, error);
  return error ? std::nullopt : std::optional(State{written, size});
}

void FileWatch::Look() {
  WatchAgain();
  const std::optional<State> state = CurrentState();
  if (must_tell_ || state != told_) {
    must_tell_ = false;
    told_ = state;
    emit Changed();
  }
}

}  // namespace vendlingua
