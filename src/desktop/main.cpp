#include <QApplication>
#include <QFileInfo>
#include <QStandardPaths>

#include "core/engine.h"
#include "core/operations/start_up.h"
#include "core/platform/executable_folder.h"
#include "desktop/dialogs/qt_dialogs.h"
#include "desktop/fonts/qt_font_list.h"
#include "desktop/main_window/frm_mes.h"
#include "desktop/qt_path.h"
#include "desktop/qt_program_starter.h"

namespace {

namespace fs = std::filesystem;

vendlingua::Folders FindFolders() {
  vendlingua::Folders folders;
  folders.program = vendlingua::ExecutableFolder();
  const fs::path executable = vendlingua::ToPath(QCoreApplication::applicationFilePath());
  const fs::path settings = executable.stem().concat(".ini");
  folders.settings = folders.program / settings;
  folders.user_settings =
      vendlingua::ToPath(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)) /
      settings;
  return folders;
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("vendlingua"));
  vendlingua::QtDialogs dialogs;
  vendlingua::Engine engine(dialogs);
  engine.workspace.folders = FindFolders();
  const vendlingua::QtFontList fonts(engine.workspace.folders.program / "fonts");
  if (!vendlingua::StartUp(engine.workspace, dialogs, fonts).Form_Load()) {
    return 1;
  }
  vendlingua::QtProgramStarter starter;
  vendlingua::FrmMes window(engine, dialogs, starter);
  window.show();
  return QApplication::exec();
}
