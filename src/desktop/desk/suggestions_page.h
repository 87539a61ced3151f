#ifndef VENDLINGUA_DESKTOP_DESK_SUGGESTIONS_PAGE_H_
#define VENDLINGUA_DESKTOP_DESK_SUGGESTIONS_PAGE_H_

#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QStringList>
#include <QWidget>
#include <filesystem>
#include <vector>

#include "core/desk/memories.h"
#include "core/document/workspace.h"
#include "desktop/desk/preview_dialog.h"
#include "desktop/desk/suggestion_delegate.h"

namespace vendlingua {

/// Translations of texts that are like the current message (`DeskSuggestions`), and the files that
/// they come from. While it is hidden it shows nothing new.
class SuggestionsPage : public QWidget {
  Q_OBJECT

 public:
  SuggestionsPage(const Workspace& workspace, QWidget* parent);

  void Mirror();
  void SetCaptions(const UiText& ui_text);

  /// The files that the user chose as memory.
  QStringList MemoryFiles() const;
  void SetMemoryFiles(const QStringList& files);
  /// Adds a file. False when it does not hold the languages that are open.
  bool AddMemoryFile(const std::filesystem::path& file);

  /// What could be filled in, by message.
  Preview PretranslationPreview() const;

  /// Takes a suggestion; nothing when there are not so many.
  void Take(int row);

 signals:
  void Taken(const NewText& text);
  void NoRoom();
  void PretranslateWanted();
  void MemoryFileWanted();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void FillMemoryMenu();
  void ChangeMemoryFiles(std::vector<std::filesystem::path> files);
  void ShowSuggestions();
  void TellUnreadable();
  ShownSuggestion Shown(const Suggestion& suggestion, std::size_t place) const;
  QString NameOf(const MemorySource& source) const;

  const Workspace& workspace_;
  Memories memories_;
  std::vector<std::filesystem::path> files_;
  std::vector<ShownSuggestion> shown_;
  SuggestionDelegate* delegate_;
  QListWidget* list_;
  QLabel* nothing_;
  QLabel* unreadable_;
  QPushButton* pretranslate_;
  QPushButton* memory_;
  QMenu* memory_menu_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_SUGGESTIONS_PAGE_H_
