#include "desktop/application.h"

#include <QDebug>
#include <QScopeGuard>
#include <exception>

#include "desktop/dialogs/qt_dialogs.h"

namespace vendlingua {

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& error) {
    Report(error.what());
    return false;
  }
}

void Application::Report(const std::string& failure) {
  if (reporting_) {
    qCritical("%s", failure.c_str());
    return;
  }
  reporting_ = true;
  const auto show = [this, failure] {
    const auto shown = qScopeGuard([this] { reporting_ = false; });
    ShowFailure(failure);
  };
  QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
}

// The dialogs of the windows would ask the windows to show their state, which may be what failed.
void ShowFailure(const std::string& failure) {
  QtDialogs().MessageBox({MessageIcon::kCritical, failure, "ERROR"});
}

}  // namespace vendlingua
