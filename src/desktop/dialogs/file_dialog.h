#ifndef VENDLINGUA_DESKTOP_DIALOGS_FILE_DIALOG_H_
#define VENDLINGUA_DESKTOP_DIALOGS_FILE_DIALOG_H_

#include <QFileDialog>
#include <filesystem>
#include <optional>

#include "core/platform/dialogs.h"
#include "desktop/qt_folder.h"

namespace vendlingua {

/// A file dialog for one request: that of the desktop where it has one, else Qt's. It has no meta
/// object of its own, because Qt would then never take that of the desktop.
class FileDialog : public QFileDialog {
 public:
  FileDialog(const FileRequest& request, AcceptMode mode, QWidget* parent);

  /// What the user chose; nothing when the dialog was cancelled.
  std::optional<std::filesystem::path> Ask();

 protected:
  /// Stays open until the folder of the choice is there.
  void accept() override;

 private:
  void FitContents();
  bool IsQts() const;

  std::filesystem::path initial_name_;
  QtFolder folder_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DIALOGS_FILE_DIALOG_H_
