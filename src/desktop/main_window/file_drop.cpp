#include "desktop/main_window/file_drop.h"

#include <QDropEvent>
#include <QList>
#include <QUrl>

#include "desktop/qt_path.h"

namespace vendlingua {
namespace {

// The one file that is dragged; empty when there are several, or when it lies elsewhere.
QString FileIn(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

}  // namespace

bool HoldsFiles(const QMimeData& data) { return data.hasUrls(); }

FileDrop::FileDrop(QWidget& window) : QObject(&window) {
  window.setAcceptDrops(true);
  window.installEventFilter(this);
}

bool FileDrop::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) {
    return QObject::eventFilter(watched, event);
  }
  auto& drop = *static_cast<QDropEvent*>(event);
  const QString file = FileIn(*drop.mimeData());
  if (file.isEmpty()) {
    return QObject::eventFilter(watched, event);
  }
  drop.acceptProposedAction();
  if (type == QEvent::Drop) {
    emit Dropped(ToPath(file));
  }
  return true;
}

}  // namespace vendlingua
