#include <exception>

#include "core/engine.h"
#include "core/operations/language_files.h"
#include "core/operations/start_up.h"
#include "desktop/application.h"
#include "desktop/dialogs/qt_dialogs.h"
#include "desktop/fonts/qt_font_list.h"
#include "desktop/interface_locale.h"
#include "desktop/main_window/frm_mes.h"
#include "desktop/program_folders.h"
#include "desktop/qt_program_starter.h"
#include "desktop/sudden_end.h"

namespace {

int Run() {
  vendlingua::QtDialogs dialogs;
  vendlingua::Engine engine(dialogs);
  engine.workspace.folders = vendlingua::ProgramFolders();
  engine.workspace.LanguageName =
      vendlingua::SystemLanguage(vendlingua::LanguageNames(engine.workspace.folders.program));
  const vendlingua::QtFontList fonts(engine.workspace.folders.program / "fonts");
  if (!vendlingua::StartUp(engine.workspace, dialogs, fonts).Form_Load()) {
    return 1;
  }
  vendlingua::QtProgramStarter starter;
  vendlingua::FrmMes window(engine, dialogs, starter);
  const vendlingua::SuddenEnd sudden_end([&window] { window.KeepEdits(); });
  window.show();
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  const vendlingua::Application application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("vendlingua"));
  try {
    return Run();
  } catch (const std::exception& error) {
    vendlingua::ShowFailure(QString::fromUtf8(error.what()));
    return 1;
  }
}
