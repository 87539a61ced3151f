#include "desktop/qt_folder.h"

#include <utility>

#include "desktop/qt_path.h"

#ifdef __linux__
#include <fcntl.h>
#include <unistd.h>
#endif

namespace vendlingua {

#ifdef __linux__

QtFolder::QtFolder(std::filesystem::path folder)
    : folder_(std::move(folder)), name_(ToQString(folder_)) {
  if (ToPath(name_) == folder_) {
    return;
  }
  handle_ = open(folder_.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
  if (handle_ != kNoHandle) {
    name_ = QStringLiteral("/proc/%1/fd/%2").arg(getpid()).arg(handle_);
  }
}

QtFolder::~QtFolder() {
  if (handle_ != kNoHandle) {
    close(handle_);
  }
}

#else

// Names are Unicode on the other systems.
QtFolder::QtFolder(std::filesystem::path folder)
    : folder_(std::move(folder)), name_(ToQString(folder_)) {}

QtFolder::~QtFolder() = default;

#endif

std::filesystem::path QtFolder::PathOf(const QString& file) const {
  const QString below = name_ + QLatin1Char('/');
  return HasSecondName() && file.startsWith(below) ? folder_ / ToPath(file.mid(below.size()))
                                                   : ToPath(file);
}

}  // namespace vendlingua
