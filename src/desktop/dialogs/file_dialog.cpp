#include "desktop/dialogs/file_dialog.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QTreeView>

#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

// Files of this extension in any case. Where the dialog of the desktop minds the case, the pattern
// has to name both.
QString Pattern(const QString& extension) {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
  QString pattern = QStringLiteral("*.");
  for (const QChar character : extension) {
    pattern += QStringLiteral("[%1%2]").arg(character.toLower()).arg(character.toUpper());
  }
  return pattern;
#else
  return QStringLiteral("*.") + extension;
#endif
}

// The caption says the extension as people write it; the pattern behind it is not shown.
QStringList NameFilters(const std::vector<FileFilter>& filters) {
  QStringList name_filters;
  for (const FileFilter& filter : filters) {
    const QString extension = FromUtf8(filter.extension);
    name_filters += QStringLiteral("%1 (*.%2) (%3)")
                        .arg(FromUtf8(filter.caption), extension, Pattern(extension));
  }
  return name_filters;
}

}  // namespace

FileDialog::FileDialog(const FileRequest& request, AcceptMode mode, QWidget* parent)
    : QFileDialog(parent), initial_name_(request.initial_name), folder_(request.folder) {
  setAcceptMode(mode);
  setFileMode(request.must_exist ? ExistingFile : AnyFile);
  if (!request.title.empty()) {
    setWindowTitle(FromUtf8(request.title));
  }
  setOption(HideNameFilterDetails);
  setNameFilters(NameFilters(request.filters));
  setDirectory(folder_.name());
  setDefaultSuffix(FromUtf8(request.default_extension));
  setOption(DontConfirmOverwrite, !request.overwrite_prompt);
  if (!request.initial_name.empty()) {
    selectFile(FromUtf8(request.initial_name));
  }
  FitContents();
}

// The name that stood there at first is no choice.
std::optional<std::filesystem::path> FileDialog::Ask() {
  if (exec() != QDialog::Accepted || selectedFiles().isEmpty()) {
    return std::nullopt;
  }
  const std::filesystem::path path = folder_.PathOf(selectedFiles().constFirst());
  return path.filename() == initial_name_ ? path.filename() : path;
}

void FileDialog::accept() {
  const QStringList files = selectedFiles();
  const QString folder = files.isEmpty() ? QString() : QFileInfo(files.constFirst()).path();
  if (IsQts() && !folder.isEmpty() && !QFileInfo(folder).isDir()) {
    // A sentence of Qt's own, which its translations have.
    QMessageBox::warning(
        this, windowTitle(),
        tr("%1\nDirectory not found.\nPlease verify the correct directory name was given.")
            .arg(QDir::toNativeSeparators(folder)));
    return;
  }
  QFileDialog::accept();
}

// Qt makes the columns as wide as an example, which cuts sizes and dates, and the list of places
// too narrow for its own texts in most languages.
void FileDialog::FitContents() {
  if (const auto* details = findChild<QTreeView*>(QStringLiteral("treeView"))) {
    details->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    details->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  }
  if (auto* places = findChild<QListView*>(QStringLiteral("sidebar"))) {
    places->setMinimumWidth(places->sizeHint().width());
  }
}

// The dialogs of desktops look for the folder by themselves.
bool FileDialog::IsQts() const {
  return findChild<QLineEdit*>(QStringLiteral("fileNameEdit")) != nullptr;
}

}  // namespace vendlingua
