#ifndef VENDLINGUA_DESKTOP_DESK_LANGUAGES_PAGE_H_
#define VENDLINGUA_DESKTOP_DESK_LANGUAGES_PAGE_H_

#include <QPushButton>
#include <QTreeWidget>
#include <QWidget>
#include <optional>
#include <vector>

#include "core/desk/language_list.h"
#include "core/document/workspace.h"

namespace vendlingua {

/// The languages of the file, a row each (`DeskLanguages`), and what can be done with one. While it
/// is hidden it shows nothing new: it reads the whole file.
class LanguagesPage : public QWidget {
  Q_OBJECT

 public:
  LanguagesPage(const Workspace& workspace, QWidget* parent);

  void Mirror();
  void SetCaptions(const UiText& ui_text);

 signals:
  void OpenWanted(int language);
  void NewWanted(int language);
  void RenameWanted(int language);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void ShowLanguage(QTreeWidgetItem& row, const ListedLanguage& language);
  void EnableButtons();
  std::optional<int> CurrentLanguage() const;

  const Workspace& workspace_;
  QTreeWidget* list_;
  QPushButton* open_;
  QPushButton* new_;
  QPushButton* rename_;
  std::vector<ListedLanguage> shown_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_LANGUAGES_PAGE_H_
