#include <QCoreApplication>
#include <QMetaObject>
#include <exception>
#include <filesystem>

#include "core/engine.h"
#include "core/operations/language_files.h"
#include "core/operations/start_up.h"
#include "desktop/application.h"
#include "desktop/dialogs/qt_dialogs.h"
#include "desktop/fonts/qt_font_list.h"
#include "desktop/interface_locale.h"
#include "desktop/main_window/frm_mes.h"
#include "desktop/program_folders.h"
#include "desktop/qt_path.h"
#include "desktop/qt_program_starter.h"
#include "desktop/sudden_end.h"

namespace {

// `file` is opened as from the menu; an empty one is none.
int Run(const std::filesystem::path& file) {
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
  if (!file.empty()) {
    QMetaObject::invokeMethod(
        &window, [&] { window.OpenFile(file); }, Qt::QueuedConnection);
  }
  return QApplication::exec();
}

// The file that was named as the argument; empty when none was. Its bytes may be no text.
std::filesystem::path FileArgument([[maybe_unused]] int argc, [[maybe_unused]] char** argv) {
#ifdef _WIN32
  const QString file = QCoreApplication::arguments().value(1);
  return file.isEmpty() ? std::filesystem::path() : absolute(vendlingua::ToPath(file));
#else
  return argc > 1 ? std::filesystem::absolute(argv[1]) : std::filesystem::path();
#endif
}

}  // namespace

int main(int argc, char** argv) {
  const vendlingua::Application application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("vendlingua"));
  try {
    return Run(FileArgument(argc, argv));
  } catch (const std::exception& error) {
    vendlingua::ShowFailure(QString::fromUtf8(error.what()));
    return 1;
  }
}
