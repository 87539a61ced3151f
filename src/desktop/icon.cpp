#include "desktop/icon.h"

#include <QSize>
#include <QString>
#include <array>
#include <span>

// Resources of a static library have to be asked for, outside of any namespace.
static void RegisterIcons() { Q_INIT_RESOURCE(icons); }

namespace vendlingua {
namespace {

// The sizes in pixels that the build draws.
constexpr std::array kSizes = {16, 20, 24, 32, 48};
constexpr std::array kProgramSizes = {64, 128, 256};

void AddPictures(QIcon& icon, QLatin1String name, std::span<const int> sizes) {
  for (const int size : sizes) {
    icon.addFile(QStringLiteral(":/icons/%1-%2.png").arg(name).arg(size), QSize(size, size));
  }
}

}  // namespace

QIcon Icon(QLatin1String name) {
  RegisterIcons();
  QIcon icon;
  AddPictures(icon, name, kSizes);
  return icon;
}

QIcon ProgramIcon() {
  constexpr QLatin1String kName("vendlingua");
  QIcon icon = Icon(kName);
  AddPictures(icon, kName, kProgramSizes);
  return icon;
}

}  // namespace vendlingua
