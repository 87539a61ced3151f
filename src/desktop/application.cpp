#include "desktop/application.h"

#include <QDebug>
#include <QEvent>
#include <QLabel>
#include <QScopeGuard>
#include <exception>

#include "desktop/dialogs/qt_dialogs.h"

namespace vendlingua {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  connect(this, &Application::Failed, this, &Application::Show, Qt::QueuedConnection);
}

// A label is polished before it is shown first; tool tips, and the boxes that Qt makes by itself,
// show their text in labels, too.
bool Application::notify(QObject* receiver, QEvent* event) {
  if (event->type() == QEvent::Polish) {
    if (auto* label = qobject_cast<QLabel*>(receiver)) {
      label->setTextFormat(Qt::PlainText);
    }
  }
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& error) {
    Report(QString::fromUtf8(error.what()));
    return false;
  }
}

void Application::Report(const QString& failure) {
  if (reporting_) {
    qCritical("%s", qUtf8Printable(failure));
  } else {
    reporting_ = true;
    emit Failed(failure);
  }
}

void Application::Show(const QString& failure) {
  const auto shown = qScopeGuard([this] { reporting_ = false; });
  ShowFailure(failure);
}

// The dialogs of the windows would ask the windows to show their state, which may be what failed.
void ShowFailure(const QString& failure) {
  QtDialogs().MessageBox({MessageIcon::kCritical, failure.toStdString(), "ERROR"});
}

}  // namespace vendlingua
