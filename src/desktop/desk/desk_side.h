#ifndef VENDLINGUA_DESKTOP_DESK_DESK_SIDE_H_
#define VENDLINGUA_DESKTOP_DESK_DESK_SIDE_H_

#include <QByteArray>
#include <QSettings>
#include <QTabWidget>
#include <QWidget>
#include <functional>
#include <vector>

#include "core/desk/live_findings.h"
#include "core/engine.h"
#include "core/marks/document_marks.h"
#include "core/texts/ui_sentence.h"
#include "desktop/desk/findings_page.h"
#include "desktop/desk/glass_panel.h"
#include "desktop/desk/language_jobs.h"
#include "desktop/desk/languages_page.h"
#include "desktop/desk/mark_panel.h"
#include "desktop/desk/suggestions_page.h"
#include "desktop/run_command.h"

namespace vendlingua {

/// What stands beside the table of the desk: the glass, and pages with suggestions, findings and
/// languages.
class DeskSide : public QWidget {
  Q_OBJECT

 public:
  DeskSide(Engine& engine, Dialogs& dialogs, const LiveFindings& findings, DocumentMarks& marks,
           RunCommand run, QWidget* parent);

  void Mirror();
  void SetCaptions(const UiText& ui_text);
  void Restore(const QSettings& settings);
  void Store(QSettings& settings) const;

  /// Mends the finding that is chosen.
  void Fix() { findings_page_->Fix(); }
  /// Gives the current message the next mark.
  void StepMark() { mark_->Step(); }
  /// What is being typed counts before another message is shown.
  void FinishRemark() { mark_->Finish(); }
  /// Takes a suggestion, or shows them first.
  void TakeSuggestion(int row);

 private:
  void ConnectFindings();
  void ConnectSuggestions();
  void ConnectLanguages();
  void ConnectLanguageJobs();

  void ChangeTexts(const std::vector<NewText>& texts);
  void Pretranslate();
  void AddMemoryFile();
  void SavePicture(const QByteArray& png);
  void Tell(const UiSentence& sentence);
  void Run(const std::function<void()>& command) { run_(command, *window()); }

  Engine& engine_;
  Dialogs& dialogs_;
  Workspace& workspace_;
  const LiveFindings& findings_;
  DocumentMarks& marks_;
  RunCommand run_;
  LanguageJobs jobs_;
  GlassPanel* glass_;
  MarkPanel* mark_;
  QTabWidget* pages_;
  SuggestionsPage* suggestions_;
  FindingsPage* findings_page_;
  LanguagesPage* languages_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_DESK_SIDE_H_
