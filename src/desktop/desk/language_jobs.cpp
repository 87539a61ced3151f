#include "desktop/desk/language_jobs.h"

#include <QDesktopServices>
#include <QDir>
#include <QStandardPaths>
#include <QUrl>
#include <algorithm>
#include <map>
#include <string>

#include "core/checks/language_texts.h"
#include "core/desk/derived_file.h"
#include "core/desk/finding_text.h"
#include "core/desk/proof_of.h"
#include "core/exchange/read_table.h"
#include "core/exchange/table_format.h"
#include "core/exchange/translation_plan.h"
#include "core/formats/message_file.h"
#include "core/formats/message_texts.h"
#include "core/operations/message_file_opener.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"
#include "desktop/qt_path.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

std::vector<FileFilter> TableFilters() {
  return {{"XLIFF", "xliff"}, {"XLIFF", "xlf"}, {"CSV", "csv"}};
}

DisplayCodes CellsOf(const MessageSet& set, const DisplayText& text) {
  const auto cells = text.First(set.Width());
  return {cells.begin(), cells.end()};
}

// Rows of the messages that say something else there.
std::vector<PreviewRow> Differences(const MessageSet& set, const MessageTexts& here,
                                    const MessageTexts& there) {
  std::vector<PreviewRow> rows;
  for (std::size_t message = 0; message < std::min(set.MessageCount(), there.size()); ++message) {
    const DisplayCodes before = CellsOf(set, here.at(message));
    const DisplayCodes after = CellsOf(set, there[message]);
    if (before != after) {
      rows.push_back({message, before, after, {}});
    }
  }
  return rows;
}

std::map<std::size_t, QString> InWords(const std::vector<PlanWarning>& warnings,
                                       const UiText& ui_text) {
  std::map<std::size_t, QString> words;
  for (const PlanWarning& warning : warnings) {
    words[warning.message] = FromUtf8(
        ui_text[warning.kind == PlanWarning::Kind::kOvertyped ? UiTextId::kPlaceholderOvertyped
                                                              : UiTextId::kPlaceholderStray]);
  }
  return words;
}

}  // namespace

LanguageJobs::LanguageJobs(Engine& engine, Dialogs& dialogs, QWidget& parent)
    : engine_(engine), dialogs_(dialogs), workspace_(engine.workspace), parent_(parent) {}

// Of the open language as it is being edited.
MessageTexts LanguageJobs::CurrentTexts(int language) const {
  const MessageSet& set = workspace_.set;
  return set.DestinationIsOpen() && set.DestLang == language ? set.DestText
                                                             : TextsOf(set, language);
}

int LanguageJobs::Origin() const {
  return workspace_.set.origin_language.value_or(UsualOrigin(workspace_.set));
}

void LanguageJobs::Tell(const UiSentence& sentence) {
  workspace_.window.status = sentence.In(workspace_.ui_text);
}

bool LanguageJobs::OpenAsDestination(int language) {
  const MessageSet& set = workspace_.set;
  return (set.DestinationIsOpen() && set.DestLang == language) ||
         engine_.languages.ChooseDestination(language) == DestinationOutcome::kOpened;
}

void LanguageJobs::TakeFrom(const Preview& preview) {
  PreviewDialog dialog(workspace_, preview, &parent_);
  if (dialog.exec() == QDialog::Accepted) {
    engine_.editing.ReplaceTexts(dialog.Texts());
  }
}

void LanguageJobs::Compare(int language) {
  const auto path = AskForMessageFile(dialogs_, workspace_.folders.current);
  if (path.empty()) {
    return;
  }
  const MessageSet other = ReadMessageFile(path);
  const std::string file = PathText(path.filename());
  // A copy: opening the language reads the names again.
  const std::string name = workspace_.set.language_names.at(static_cast<std::size_t>(language));
  const auto found = std::ranges::find(other.language_names, name);
  if (found == other.language_names.end()) {
    Tell(UiSentence(UiTextId::kLanguageNotThere, file, name));
    return;
  }
  const auto number = static_cast<int>(found - other.language_names.begin());
  const MessageTexts there = TextsOf(other, other.file_content, number);
  if (Differences(workspace_.set, CurrentTexts(language), there).empty()) {
    Tell(UiSentence(UiTextId::kSameTexts, file));
    return;
  }
  if (OpenAsDestination(language)) {
    const UiSentence summary(UiTextId::kComparedWith, name, file);
    TakeFrom({.title = UiTextId::kCompareWith,
              .accept = UiTextId::kTakeTexts,
              .summary = FromUtf8(summary.In(workspace_.ui_text)),
              .rows = Differences(workspace_.set, workspace_.set.DestText, there)});
  }
}

void LanguageJobs::Proof(int language) {
  const MessageSet& set = workspace_.set;
  const Alphabet& alphabet = Alphabet::Of(set.DisplayType);
  const CheckBasis basis(set, ReadLanguages(set), Origin(), alphabet);
  const MessageTexts texts = CurrentTexts(language);
  const LanguageCheck check(basis, language, texts, set.MessageCount());
  const std::string& name = set.language_names.at(static_cast<std::size_t>(language));
  const ProofSheet sheet{PathText(set.CurrentFileName.filename()),
                         set.language_names.at(static_cast<std::size_t>(Origin())),
                         {ProofOf(basis, check, name, texts, [&](const Finding& finding) {
                           return SentenceOf(finding, workspace_.ui_text);
                         })}};
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::CacheLocation));
  folder.mkpath(QStringLiteral("."));
  const QString file =
      folder.filePath(QStringLiteral("%1-%2.html").arg(FromUtf8(sheet.file)).arg(language));
  WriteFile(ToPath(file), FormatProofSheet(sheet, alphabet));
  QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

void LanguageJobs::Export(int language) {
  const MessageSet& set = workspace_.set;
  const auto path = dialogs_.SaveFile({.purpose = FilePurpose::kTable,
                                       .title = "",
                                       .initial_name = "",
                                       .default_extension = "xliff",
                                       .filters = TableFilters(),
                                       .overwrite_prompt = true,
                                       .folder = workspace_.folders.current});
  if (path) {
    const TranslationTable table =
        TableOf(set, language, CurrentTexts(language), Origin(), Alphabet::Of(set.DisplayType));
    WriteDerivedFile(set, *path, WriteTable(table, FormatOf(*path)));
    workspace_.window.status =
        workspace_.ui_text[UiTextId::kSaved] + " " + PathText(path->filename());
  }
}

std::filesystem::path LanguageJobs::AskForTable() {
  return dialogs_
      .OpenFile({.purpose = FilePurpose::kTable,
                 .title = "",
                 .initial_name = "",
                 .default_extension = "",
                 .filters = TableFilters(),
                 .must_exist = true,
                 .folder = workspace_.folders.current})
      .value_or(std::filesystem::path());
}

void LanguageJobs::Import(int language) {
  const auto path = AskForTable();
  if (path.empty() || !OpenAsDestination(language)) {
    return;
  }
  const MessageSet& set = workspace_.set;
  const UiText& ui_text = workspace_.ui_text;
  const std::string file = PathText(path.filename());
  const TranslationPlan plan =
      PlanTranslation(set, set.DestText, ReadTable(ReadFile(path)), Alphabet::Of(set.DisplayType));
  if (plan.IsRefused()) {
    const TableProblem& first = plan.problems.listed().front();
    const UiSentence refused(UiTextId::kTableRefused, file,
                             plan.problems.listed().size() + plan.problems.more(), first.place,
                             first.message.empty() ? "-" : first.message);
    dialogs_.MessageBox({MessageIcon::kCritical, refused.In(ui_text), ""});
    return;
  }
  if (plan.changes.empty()) {
    Tell(UiSentence(UiTextId::kNothingChanges, file));
    return;
  }
  const auto warnings = InWords(plan.warnings, ui_text);
  Preview preview{.title = UiTextId::kImport,
                  .accept = UiTextId::kTakeTexts,
                  .summary = FromUtf8(UiSentence(UiTextId::kImportPreview, file).In(ui_text)),
                  .remark = warnings.empty() ? std::nullopt : std::optional(UiTextId::kRemark)};
  for (const PlannedText& text : plan.changes) {
    const auto warning = warnings.find(text.message);
    preview.rows.push_back({text.message, text.before, text.after,
                            warning == warnings.end() ? QString() : warning->second});
  }
  TakeFrom(preview);
}

}  // namespace vendlingua
