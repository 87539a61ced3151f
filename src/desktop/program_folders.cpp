#include "desktop/program_folders.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QStandardPaths>

#include "core/platform/executable_folder.h"
#include "desktop/qt_path.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

// A folder of the user's that is this program's alone: `variable` names the one of all programs,
// which is `in_home` where it does not. Qt would answer in Unicode, which not every home is named
// in.
fs::path UserFolder([[maybe_unused]] const char* variable, [[maybe_unused]] const char* in_home,
                    QStandardPaths::StandardLocation elsewhere) {
#ifndef _WIN32
  const fs::path program = ToPath(QCoreApplication::applicationName());
  const fs::path folder = qgetenv(variable).toStdString();
  if (folder.is_absolute()) {
    return folder / program;
  }
  const fs::path home = qgetenv("HOME").toStdString();
  if (home.is_absolute()) {
    return home / in_home / program;
  }
#endif
  return ToPath(QStandardPaths::writableLocation(elsewhere));
}

}  // namespace

Folders ProgramFolders() {
  const fs::path executable = ExecutableFile();
  const fs::path name = executable.empty() ? "vendlingua" : executable.stem();
  const fs::path settings = fs::path(name).concat(".ini");
  Folders folders;
  folders.program = ExecutableFolder();
  folders.settings = folders.program / settings;
  folders.user_settings =
      UserFolder("XDG_CONFIG_HOME", ".config", QStandardPaths::AppConfigLocation) / settings;
  folders.journals =
      UserFolder("XDG_DATA_HOME", ".local/share", QStandardPaths::AppDataLocation) / "journals";
  return folders;
}

}  // namespace vendlingua
