#include "desktop/desk/suggestions_page.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <utility>

#include "core/desk/row_state.h"
#include "core/desk/text_difference.h"
#include "core/document/alphabet.h"
#include "core/platform/errors.h"
#include "core/texts/ui_sentence.h"
#include "desktop/fonts/display_font.h"
#include "desktop/qt_path.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

constexpr std::size_t kMostSuggestions = 9;
constexpr double kPercent = 100;

ShownCells ToShow(std::span<const DisplayCode> codes) {
  ShownCells cells{{codes.begin(), codes.end()}, {}, {}};
  for (const DisplayCode code : codes) {
    cells.board_fills.push_back(code == kPlaceholder);
  }
  return cells;
}

QString FileName(const std::filesystem::path& file) { return FromUtf8(PathText(file.filename())); }

}  // namespace

SuggestionsPage::SuggestionsPage(const Workspace& workspace, QWidget* parent)
    : QWidget(parent),
      workspace_(workspace),
      delegate_(new SuggestionDelegate(shown_, this)),
      list_(new QListWidget(this)),
      nothing_(new QLabel(this)),
      unreadable_(new QLabel(this)),
      pretranslate_(new QPushButton(this)),
      memory_(new QPushButton(this)),
      memory_menu_(new QMenu(this)) {
  list_->setObjectName(QStringLiteral("DeskSuggestions"));
  nothing_->setObjectName(QStringLiteral("DeskNoSuggestions"));
  pretranslate_->setObjectName(QStringLiteral("DeskPretranslate"));
  memory_->setObjectName(QStringLiteral("DeskMemory"));
  memory_menu_->setObjectName(QStringLiteral("DeskMemoryMenu"));
  list_->setItemDelegate(delegate_);
  list_->setUniformItemSizes(true);
  unreadable_->setObjectName(QStringLiteral("DeskUnreadableMemory"));
  unreadable_->setTextFormat(Qt::PlainText);
  unreadable_->setWordWrap(true);
  nothing_->setWordWrap(true);
  nothing_->setAlignment(Qt::AlignCenter);
  memory_->setMenu(memory_menu_);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(pretranslate_);
  buttons->addStretch();
  buttons->addWidget(memory_);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(list_, 1);
  layout->addWidget(nothing_, 1);
  layout->addWidget(unreadable_);
  layout->addLayout(buttons);
  connect(list_, &QListWidget::itemActivated, this,
          [this](const QListWidgetItem* item) { Take(list_->row(item)); });
  connect(pretranslate_, &QPushButton::clicked, this, &SuggestionsPage::PretranslateWanted);
  connect(memory_menu_, &QMenu::aboutToShow, this, &SuggestionsPage::FillMemoryMenu);
}

void SuggestionsPage::SetCaptions(const UiText& ui_text) {
  list_->setAccessibleName(FromUtf8(ui_text[UiTextId::kSuggestions]));
  nothing_->setText(FromUtf8(ui_text[UiTextId::kNoSuggestions]));
  pretranslate_->setText(FromUtf8(ui_text[UiTextId::kPretranslate]));
  memory_->setText(FromUtf8(ui_text[UiTextId::kMemory]));
}

QStringList SuggestionsPage::MemoryFiles() const {
  QStringList files;
  for (const std::filesystem::path& file : files_) {
    files += ToQString(file);
  }
  return files;
}

void SuggestionsPage::SetMemoryFiles(const QStringList& files) {
  std::vector<std::filesystem::path> paths;
  for (const QString& file : files) {
    paths.push_back(ToPath(file));
  }
  ChangeMemoryFiles(std::move(paths));
}

void SuggestionsPage::ChangeMemoryFiles(std::vector<std::filesystem::path> files) {
  files_ = std::move(files);
  memories_.SetFiles(files_, SampleFile(workspace_.folders));
  Mirror();
}

bool SuggestionsPage::AddMemoryFile(const std::filesystem::path& file) {
  std::vector<std::filesystem::path> files = files_;
  std::erase(files, file);
  files.insert(files.begin(), file);
  ChangeMemoryFiles(std::move(files));
  return std::ranges::find(memories_.sources(), file, &MemorySource::file) !=
         memories_.sources().end();
}

void SuggestionsPage::FillMemoryMenu() {
  const UiText& ui_text = workspace_.ui_text;
  memory_menu_->clear();
  memory_menu_->addAction(FromUtf8(ui_text[UiTextId::kAddMemory]), this,
                          &SuggestionsPage::MemoryFileWanted);
  memory_menu_->addSeparator();
  for (const std::filesystem::path& file : files_) {
    const UiSentence remove(UiTextId::kRemoveMemory, PathText(file.filename()));
    QString caption = FromUtf8(remove.In(ui_text)).replace(QLatin1Char('&'), QLatin1String("&&"));
    QAction* entry = memory_menu_->addAction(caption, this, [this, file] {
      std::vector<std::filesystem::path> files = files_;
      std::erase(files, file);
      ChangeMemoryFiles(std::move(files));
    });
    entry->setToolTip(ToQString(file));
  }
}

void SuggestionsPage::Mirror() {
  if (!isVisible()) {
    return;
  }
  memories_.Follow(workspace_.set);
  ShowSuggestions();
  TellUnreadable();
  pretranslate_->setEnabled(workspace_.set.DestinationIsOpen());
}

void SuggestionsPage::ShowSuggestions() {
  const MessageSet& set = workspace_.set;
  const std::vector<Suggestion> suggestions = memories_.SuggestionsFor(set, kMostSuggestions);
  shown_.clear();
  list_->clear();
  delegate_->SetDisplayFont(SpacedLikeCells(DisplayFont(set.DisplayType)));
  for (const Suggestion& suggestion : suggestions) {
    shown_.push_back(Shown(suggestion, shown_.size()));
  }
  const Alphabet& alphabet = Alphabet::Of(set.DisplayType);
  for (const ShownSuggestion& shown : shown_) {
    const QStringList parts = {FromUtf8(alphabet.TextOf(shown.translation.codes)).trimmed(),
                               FromUtf8(alphabet.TextOf(shown.origin.codes)).trimmed(),
                               shown.rating, shown.source, shown.key};
    auto* item = new QListWidgetItem(parts.join(QStringLiteral(", ")), list_);
    item->setToolTip(shown.source);
  }
  list_->setVisible(!shown_.empty());
  nothing_->setVisible(shown_.empty());
}

void SuggestionsPage::TellUnreadable() {
  QStringList sentences;
  for (const std::filesystem::path& file : memories_.unreadable()) {
    const UiSentence sentence(UiTextId::kUnreadableMemory, PathText(file.filename()));
    sentences += FromUtf8(sentence.In(workspace_.ui_text));
  }
  unreadable_->setText(sentences.join(QLatin1Char('\n')));
  unreadable_->setVisible(!sentences.isEmpty());
}

ShownSuggestion SuggestionsPage::Shown(const Suggestion& suggestion, std::size_t place) const {
  const MessageSet& set = workspace_.set;
  const Translated& translated = suggestion.translated;
  const DisplayText wanted =
      WithBoardCells(set, set.current_message, set.OriginText.at(set.current_message));
  ShownSuggestion shown;
  shown.key = QStringLiteral("Ctrl+%1").arg(place + 1);
  shown.rating = QStringLiteral("%1 %").arg(std::floor(suggestion.ratio * kPercent));
  shown.source = QStringLiteral("%1: %2")
                     .arg(NameOf(memories_.sources().at(suggestion.memory)))
                     .arg(translated.message);
  shown.origin = ToShow(translated.origin.First(set.Width()));
  shown.origin.hits = DifferenceFrom(wanted.First(set.Width()), shown.origin.codes);
  shown.translation =
      ToShow(suggestion.laid_out ? std::span<const DisplayCode>(*suggestion.laid_out)
                                 : translated.translation.First(set.Width()));
  shown.codes = suggestion.laid_out;
  return shown;
}

QString SuggestionsPage::NameOf(const MemorySource& source) const {
  switch (source.kind) {
    case MemorySource::Kind::kThisFile:
      return FromUtf8(workspace_.ui_text[UiTextId::kThisFile]);
    case MemorySource::Kind::kSamples:
      return FromUtf8(workspace_.ui_text[UiTextId::kSamples]);
    case MemorySource::Kind::kFile:
      break;
  }
  return FileName(source.file);
}

Preview SuggestionsPage::PretranslationPreview() const {
  const MessageSet& set = workspace_.set;
  const std::vector<FilledText> filled = memories_.Pretranslate(set);
  const Progress progress = ProgressOf(set);
  Preview preview{.title = UiTextId::kPretranslate,
                  .accept = UiTextId::kFill,
                  .before = UiTextId::kOriginHeading,
                  .after = UiTextId::kDestinationHeading,
                  .remark = UiTextId::kSource};
  for (const FilledText& text : filled) {
    const auto origin = set.OriginText.at(text.text.message).First(set.Width());
    preview.rows.push_back({text.text.message,
                            {origin.begin(), origin.end()},
                            text.text.codes,
                            NameOf(memories_.sources().at(text.memory))});
  }
  const std::size_t to_do = progress.messages - progress.done;
  preview.summary = FromUtf8(UiSentence(UiTextId::kPretranslatePreview, filled.size(),
                                        to_do - std::min(to_do, filled.size()))
                                 .In(workspace_.ui_text));
  return preview;
}

void SuggestionsPage::Take(int row) {
  if (row < 0 || row >= static_cast<int>(shown_.size())) {
    return;
  }
  const auto& codes = shown_[static_cast<std::size_t>(row)].codes;
  if (codes) {
    emit Taken({workspace_.set.current_message, *codes});
  } else {
    emit NoRoom();
  }
}

void SuggestionsPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  Mirror();
}

}  // namespace vendlingua
