#include "desktop/main_window/recent_files.h"

#include <algorithm>

#include "core/platform/errors.h"
#include "desktop/qt_path.h"
#include "desktop/qt_text.h"
#include "desktop/user_settings.h"

namespace vendlingua {
namespace {

constexpr qsizetype kMostRecent = 8;

QString RecentKey() { return QStringLiteral("recent"); }

}  // namespace

RecentFiles::RecentFiles(QWidget* parent) : QMenu(parent) {
  setObjectName(QStringLiteral("mnuRecent"));
  menuAction()->setObjectName(QStringLiteral("mnuRecent"));
  setToolTipsVisible(true);
  connect(this, &QMenu::aboutToShow, this, &RecentFiles::ShowFiles);
  files_ = UserSettings().value(RecentKey()).toStringList();
}

void RecentFiles::Note(const MessageSet& set) {
  const bool is_other = set.OpenedFiles != opened_ || set.CurrentFileName != last_;
  if (set.phase < Phase::kFileOpen || set.CurrentFileName.empty() || !is_other) {
    return;
  }
  opened_ = set.OpenedFiles;
  last_ = set.CurrentFileName;
  const QString file = ToQString(last_);
  files_.removeAll(file);
  files_.prepend(file);
  files_.resize(std::min(files_.size(), kMostRecent));
  UserSettings().setValue(RecentKey(), files_);
}

void RecentFiles::ShowFiles() {
  clear();
  for (const QString& file : files_) {
    QString name = FromUtf8(PathText(ToPath(file).filename()));
    QAction* entry = addAction(name.replace(QLatin1Char('&'), QLatin1String("&&")));
    entry->setToolTip(file);
    connect(entry, &QAction::triggered, this, [this, file] { emit Chosen(ToPath(file)); });
  }
}

}  // namespace vendlingua
