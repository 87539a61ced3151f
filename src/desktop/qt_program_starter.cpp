#include "desktop/qt_program_starter.h"

#include <QProcess>

#include "desktop/qt_path.h"

namespace vendlingua {

void QtProgramStarter::Start(const std::filesystem::path& program) {
  QProcess::startDetached(ToQString(program), {}, ToQString(program.parent_path()));
}

}  // namespace vendlingua
