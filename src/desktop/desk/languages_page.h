#ifndef VENDLINGUA_DESKTOP_DESK_LANGUAGES_PAGE_H_
#define VENDLINGUA_DESKTOP_DESK_LANGUAGES_PAGE_H_

#include <QPushButton>
#include <QTreeWidget>
#include <QWidget>
#include <optional>
#include <vector>

#include "core/desk/language_findings.h"
#include "core/desk/language_list.h"
#include "core/desk/live_findings.h"
#include "core/document/workspace.h"

namespace vendlingua {

/// The languages of the file, a row each (`DeskLanguages`), and what can be done with one. While it
/// is hidden it shows nothing new: it reads the whole file.
class LanguagesPage : public QWidget {
  Q_OBJECT

 public:
  LanguagesPage(const Workspace& workspace, const LiveFindings& findings, QWidget* parent);

  void Mirror();
  void SetCaptions(const UiText& ui_text);

 signals:
  void OpenWanted(int language);
  void NewWanted(int language);
  void RenameWanted(int language);
  void CompareWanted(int language);
  void ProofWanted(int language);
  void ExportWanted(int language);
  void ImportWanted(int language);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  using Wanted = void (LanguagesPage::*)(int language);

  QPushButton* AddButton(const char* name, Wanted wanted);
  void LayOut();
  std::vector<ListedLanguage> Languages();
  void ShowLanguage(QTreeWidgetItem& row, const ListedLanguage& language);
  void EnableButtons();
  std::optional<int> CurrentLanguage() const;

  const Workspace& workspace_;
  const LiveFindings& findings_;    // of the destination
  LanguageFindings file_findings_;  // of the others
  QTreeWidget* list_;
  QPushButton* open_;
  QPushButton* new_;
  QPushButton* rename_;
  QPushButton* compare_;
  QPushButton* proof_;
  QPushButton* export_;
  QPushButton* import_;
  std::vector<ListedLanguage> shown_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_LANGUAGES_PAGE_H_
