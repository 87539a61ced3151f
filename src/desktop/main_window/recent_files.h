#ifndef VENDLINGUA_DESKTOP_MAIN_WINDOW_RECENT_FILES_H_
#define VENDLINGUA_DESKTOP_MAIN_WINDOW_RECENT_FILES_H_

#include <QMenu>
#include <QStringList>
#include <cstdint>
#include <filesystem>

#include "core/document/message_set.h"

namespace vendlingua {

/// The files that were opened last (`mnuRecent`), kept in the user's configuration.
class RecentFiles : public QMenu {
  Q_OBJECT

 public:
  explicit RecentFiles(QWidget* parent);

  /// Puts the file that is open on top.
  void Note(const MessageSet& set);

 signals:
  void Chosen(const std::filesystem::path& file);

 private:
  void ShowFiles();

  QStringList files_;
  std::uint32_t opened_ = 0;
  std::filesystem::path last_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_MAIN_WINDOW_RECENT_FILES_H_
