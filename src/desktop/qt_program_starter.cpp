#include "desktop/qt_program_starter.h"

#include <QProcess>

#include "desktop/qt_folder.h"
#include "desktop/qt_path.h"

namespace vendlingua {

void QtProgramStarter::Start(const std::filesystem::path& program) {
  const QtFolder folder(program.parent_path());
  const QString name = ToQString(program.filename());
  // The second name of a folder is gone before the program has read itself: it starts there.
  const QString file = folder.HasSecondName() ? QStringLiteral("./") + name : ToQString(program);
  QProcess::startDetached(file, {}, folder.name());
}

}  // namespace vendlingua
