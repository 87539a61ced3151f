#include "desktop/users_guide.h"

#include <QDesktopServices>
#include <QUrl>

#include "core/platform/files.h"
#include "desktop/interface_locale.h"
#include "desktop/qt_path.h"
#include "desktop/qt_text.h"

namespace vendlingua {

std::filesystem::path GuidePage(const Workspace& workspace) {
  const bool italian = LanguageOf(FromUtf8(workspace.LanguageName)) == QLocale::Italian;
  return workspace.folders.program / "guide" / (italian ? "it" : "en") / "index.html";
}

void OpenGuide(const Workspace& workspace) {
  const std::filesystem::path page = GuidePage(workspace);
  ReadFile(page);  // throws when it is not there
  QDesktopServices::openUrl(QUrl::fromLocalFile(ToQString(page)));
}

}  // namespace vendlingua
