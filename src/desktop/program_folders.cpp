#include "desktop/program_folders.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QStandardPaths>

#include "core/platform/executable_folder.h"
#include "desktop/qt_path.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

// Where the user's programs keep their settings, each in a folder of its own. Qt would answer in
// Unicode, which not every home is named in.
fs::path UserFolder() {
#ifndef _WIN32
  const fs::path program = ToPath(QCoreApplication::applicationName());
  const fs::path configuration = qgetenv("XDG_CONFIG_HOME").toStdString();
  if (configuration.is_absolute()) {
    return configuration / program;
  }
  const fs::path home = qgetenv("HOME").toStdString();
  if (home.is_absolute()) {
    return home / ".config" / program;
  }
#endif
  return ToPath(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
}

}  // namespace

Folders ProgramFolders() {
  const fs::path executable = ExecutableFile();
  const fs::path name = executable.empty() ? "vendlingua" : executable.stem();
  const fs::path settings = fs::path(name).concat(".ini");
  Folders folders;
  folders.program = ExecutableFolder();
  folders.settings = folders.program / settings;
  folders.user_settings = UserFolder() / settings;
  return folders;
}

}  // namespace vendlingua
