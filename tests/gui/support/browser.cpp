#include "gui/support/browser.h"

#include <QDesktopServices>

namespace vendlingua::test {

Browser::Browser() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Open"); }

Browser::~Browser() { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

}  // namespace vendlingua::test
