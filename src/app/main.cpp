#include <QApplication>
#include <QFileInfo>
#include <QStandardPaths>

#include "app/engine.h"
#include "app/frm_mes.h"
#include "app/qt_dialogs.h"
#include "app/qt_font_list.h"
#include "app/qt_program_starter.h"
#include "app/start_up.h"
#include "platform/executable_folder.h"
#include "platform/qt_path.h"

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
