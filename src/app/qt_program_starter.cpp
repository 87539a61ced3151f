#include "app/qt_program_starter.h"

#include <QProcess>

#include "platform/qt_path.h"

namespace vendlingua {

void QtProgramStarter::Start(const std::filesystem::path& program) {
  QProcess::startDetached(ToQString(program), {}, ToQString(program.parent_path()));
}

}  // namespace vendlingua
