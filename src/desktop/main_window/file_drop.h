#ifndef VENDLINGUA_DESKTOP_MAIN_WINDOW_FILE_DROP_H_
#define VENDLINGUA_DESKTOP_MAIN_WINDOW_FILE_DROP_H_

#include <QMimeData>
#include <QObject>
#include <QWidget>
#include <filesystem>

namespace vendlingua {

/// Whether files are dragged, and not a text.
bool HoldsFiles(const QMimeData& data);

/// Takes a file that is dropped on a window, wherever in it.
class FileDrop : public QObject {
  Q_OBJECT

 public:
  explicit FileDrop(QWidget& window);

 signals:
  void Dropped(const std::filesystem::path& file);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_MAIN_WINDOW_FILE_DROP_H_
