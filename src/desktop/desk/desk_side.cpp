#include "desktop/desk/desk_side.h"

#include <QVBoxLayout>
#include <initializer_list>
#include <utility>

#include "core/desk/derived_file.h"
#include "core/formats/message_file.h"
#include "core/operations/message_file_opener.h"
#include "core/operations/rename_language.h"
#include "core/platform/errors.h"
#include "desktop/desk/preview_dialog.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

QString BacklightKey() { return QStringLiteral("backlight"); }
QString PageKey() { return QStringLiteral("page"); }
QString MemoryKey() { return QStringLiteral("memory"); }

}  // namespace

DeskSide::DeskSide(Engine& engine, Dialogs& dialogs, const LiveFindings& findings,
                   DocumentMarks& marks, RunCommand run, QWidget* parent)
    : QWidget(parent),
      engine_(engine),
      dialogs_(dialogs),
      workspace_(engine.workspace),
      findings_(findings),
      marks_(marks),
      run_(std::move(run)),
      jobs_(engine, dialogs, *this),
      glass_(new GlassPanel(workspace_, this)),
      mark_(new MarkPanel(this)),
      pages_(new QTabWidget(this)),
      suggestions_(new SuggestionsPage(workspace_, pages_)),
      findings_page_(new FindingsPage(pages_)),
      languages_(new LanguagesPage(workspace_, findings_, pages_)) {
  pages_->setObjectName(QStringLiteral("DeskPages"));
  for (QWidget* page : std::initializer_list<QWidget*>{suggestions_, findings_page_, languages_}) {
    pages_->addTab(page, QString());
  }
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(glass_);
  layout->addWidget(mark_);
  layout->addWidget(pages_, 1);
  connect(glass_, &GlassPanel::SaveWanted, this, &DeskSide::SavePicture);
  connect(mark_, &MarkPanel::Marked, this, [this](std::size_t message, const MessageMark& mark) {
    Run([&] { marks_.Put(message, mark); });
  });
  ConnectSuggestions();
  ConnectFindings();
  ConnectLanguages();
  ConnectLanguageJobs();
}

void DeskSide::ConnectSuggestions() {
  connect(suggestions_, &SuggestionsPage::Taken, this,
          [this](const NewText& text) { ChangeTexts({text}); });
  connect(suggestions_, &SuggestionsPage::NoRoom, this,
          [this] { Tell(UiSentence(UiTextId::kSuggestionNoRoom)); });
  connect(suggestions_, &SuggestionsPage::PretranslateWanted, this, &DeskSide::Pretranslate);
  connect(suggestions_, &SuggestionsPage::MemoryFileWanted, this, &DeskSide::AddMemoryFile);
}

void DeskSide::ConnectFindings() {
  connect(findings_page_, &FindingsPage::MessageChosen, this,
          [this](std::size_t message) { Run([&] { engine_.editing.GoTo(message); }); });
  connect(findings_page_, &FindingsPage::FixWanted, this,
          [this](const NewText& text) { ChangeTexts({text}); });
}

void DeskSide::ConnectLanguages() {
  connect(languages_, &LanguagesPage::OpenWanted, this,
          [this](int language) { Run([&] { engine_.languages.ChooseDestination(language); }); });
  connect(languages_, &LanguagesPage::NewWanted, this,
          [this](int language) { Run([&] { engine_.languages.StartNewLanguage(language); }); });
  connect(languages_, &LanguagesPage::RenameWanted, this,
          [this](int language) { Run([&] { RenameLanguage(workspace_, dialogs_, language); }); });
}

void DeskSide::ConnectLanguageJobs() {
  const auto add = [this](auto wanted, void (LanguageJobs::*job)(int)) {
    connect(languages_, wanted, this,
            [this, job](int language) { Run([&] { (jobs_.*job)(language); }); });
  };
  add(&LanguagesPage::CompareWanted, &LanguageJobs::Compare);
  add(&LanguagesPage::ProofWanted, &LanguageJobs::Proof);
  add(&LanguagesPage::ExportWanted, &LanguageJobs::Export);
  add(&LanguagesPage::ImportWanted, &LanguageJobs::Import);
}

void DeskSide::Mirror() {
  glass_->Mirror();
  mark_->Show(marks_, workspace_.set.current_message, workspace_.ui_text);
  suggestions_->Mirror();
  std::vector<Finding> findings = findings_.All();
  const QString caption = FromUtf8(workspace_.ui_text[UiTextId::kFindings]);
  pages_->setTabText(
      pages_->indexOf(findings_page_),
      findings.empty() ? caption : QStringLiteral("%1 (%2)").arg(caption).arg(findings.size()));
  findings_page_->Show(std::move(findings), workspace_.set.current_message);
  languages_->Mirror();
}

void DeskSide::SetCaptions(const UiText& ui_text) {
  glass_->SetCaptions(ui_text);
  mark_->SetCaptions(ui_text);
  suggestions_->SetCaptions(ui_text);
  findings_page_->SetCaptions(ui_text);
  languages_->SetCaptions(ui_text);
  pages_->setTabText(pages_->indexOf(suggestions_), FromUtf8(ui_text[UiTextId::kSuggestions]));
  pages_->setTabText(pages_->indexOf(languages_), FromUtf8(ui_text[UiTextId::kLanguages]));
}

void DeskSide::Restore(const QSettings& settings) {
  glass_->SetBacklight(settings.value(BacklightKey()).toInt());
  pages_->setCurrentIndex(settings.value(PageKey()).toInt());
  suggestions_->SetMemoryFiles(settings.value(MemoryKey()).toStringList());
}

void DeskSide::Store(QSettings& settings) const {
  settings.setValue(BacklightKey(), glass_->backlight());
  settings.setValue(PageKey(), pages_->currentIndex());
  settings.setValue(MemoryKey(), suggestions_->MemoryFiles());
}

void DeskSide::TakeSuggestion(int row) {
  if (suggestions_->isVisible()) {
    suggestions_->Take(row);
  } else {
    pages_->setCurrentWidget(suggestions_);
  }
}

void DeskSide::ChangeTexts(const std::vector<NewText>& texts) {
  Run([&] { engine_.editing.ReplaceTexts(texts); });
}

void DeskSide::Pretranslate() {
  Run([&] {
    PreviewDialog dialog(workspace_, suggestions_->PretranslationPreview(), this);
    if (dialog.exec() == QDialog::Accepted) {
      engine_.editing.ReplaceTexts(dialog.Texts());
    }
  });
}

void DeskSide::AddMemoryFile() {
  Run([&] {
    const auto path = AskForMessageFile(dialogs_, workspace_.folders.current);
    if (path.empty()) {
      return;
    }
    ReadMessageFile(path);  // throws when it is none
    const bool answers = suggestions_->AddMemoryFile(path);
    const UiSentence told(answers ? UiTextId::kMemoryAdded : UiTextId::kMemoryWithoutLanguages,
                          PathText(path.filename()));
    workspace_.window.status = told.In(workspace_.ui_text);
  });
}

void DeskSide::SavePicture(const QByteArray& png) {
  Run([&] {
    const UiText& ui_text = workspace_.ui_text;
    const auto path = dialogs_.SaveFile({.purpose = FilePurpose::kPicture,
                                         .title = "",
                                         .initial_name = "",
                                         .default_extension = "png",
                                         .filters = {{ui_text[UiTextId::kPngPictures], "png"}},
                                         .overwrite_prompt = true,
                                         .folder = workspace_.folders.current});
    if (path) {
      WriteDerivedFile(workspace_.set, *path, png.toStdString());
      workspace_.window.status = ui_text[UiTextId::kSaved] + " " + PathText(path->filename());
    }
  });
}

void DeskSide::Tell(const UiSentence& sentence) {
  Run([&] { workspace_.window.status = sentence.In(workspace_.ui_text); });
}

}  // namespace vendlingua
