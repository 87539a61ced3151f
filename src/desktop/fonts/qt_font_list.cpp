#include "desktop/fonts/qt_font_list.h"

#include <QByteArray>
#include <QFontDatabase>
#include <QString>
#include <QStringList>
#include <array>

#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

struct FontFile {
  const char* family;
  const char* file;
};

constexpr std::array<FontFile, 4> kFontFiles = {{{"LCD", "LCD.ttf"},
                                                 {"LCD_CY", "LCD_CY.ttf"},
                                                 {"LCD KTV", "LCD_KTV.ttf"},
                                                 {"LCD HBR", "LCD_HBR.ttf"}}};

// Qt takes the bytes of a font wherever they come from; its own names of files cannot name every
// folder. A font that is missing or broken is noticed when the families are checked.
void Register(const std::filesystem::path& file) {
  try {
    QFontDatabase::addApplicationFontFromData(QByteArray::fromStdString(ReadFile(file)));
  } catch (const FileError&) {
  }
}

}  // namespace

QtFontList::QtFontList(const std::filesystem::path& folder) {
  const QStringList installed = QFontDatabase::families();
  for (const FontFile& font : kFontFiles) {
    if (!installed.contains(QLatin1String(font.family), Qt::CaseInsensitive)) {
      Register(folder / font.file);
    }
  }
}

std::vector<std::string> QtFontList::Families() const {
  std::vector<std::string> families;
  for (const QString& family : QFontDatabase::families()) {
    families.push_back(family.toStdString());
  }
  return families;
}

}  // namespace vendlingua
