#ifndef VENDLINGUA_DESKTOP_DESK_FINDER_H_
#define VENDLINGUA_DESKTOP_DESK_FINDER_H_

#include <QObject>
#include <cstddef>
#include <vector>

#include "core/document/workspace.h"
#include "desktop/desk/find_bar.h"
#include "desktop/desk/message_table.h"
#include "desktop/desk/preview_dialog.h"

namespace vendlingua {

/// Finds what the find bar asks for among the messages of the table.
class Finder : public QObject {
  Q_OBJECT

 public:
  Finder(const Workspace& workspace, FindBar& bar, MessageTable& messages);

  /// To the next message with a hit, in the order of the table; beginning anew behind the last row.
  void GoToNext() { Go(Direction::kDown, Start::kBehindCurrent); }
  void GoToPrevious() { Go(Direction::kUp, Start::kBehindCurrent); }

  /// What replacing every hit in the destination would make of the listed messages. Throws Error
  /// when the display lacks a character of the new text.
  Preview ReplacementPreview() const;

 signals:
  void Found(std::size_t message);

 private:
  enum class Direction { kDown, kUp };
  enum class Start { kAtCurrent, kBehindCurrent };

  void Search();
  void Go(Direction direction, Start start);
  std::vector<int> RowsWithHits() const;
  bool HasHit(std::size_t message) const;
  DisplayCodes CodesFor(const QString& text) const;

  const Workspace& workspace_;
  FindBar& bar_;
  MessageTable& messages_;
  TextSearch search_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_FINDER_H_
