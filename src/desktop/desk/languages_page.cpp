#include "desktop/desk/languages_page.h"

#include <QApplication>
#include <QGridLayout>
#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <utility>

#include "core/texts/ui_sentence.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

constexpr int kNameColumn = 0;
constexpr int kProgressColumn = 1;
constexpr int kFindingsColumn = 2;
constexpr int kDoneRole = Qt::UserRole;
constexpr int kMessagesRole = Qt::UserRole + 1;
constexpr int kRowMargin = 6;  // pixels

// How far a language is, as a bar.
class ProgressDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index).grownBy({0, kRowMargin, 0, kRowMargin});
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const int messages = index.data(kMessagesRole).toInt();
    if (messages == 0) {
      QStyledItemDelegate::paint(painter, option, index);
      return;
    }
    const QStyle& style = *option.widget->style();
    style.drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
    QStyleOptionProgressBar bar;
    bar.palette = option.palette;
    bar.state = option.state | QStyle::State_Horizontal;
    bar.rect = option.rect.adjusted(2, 2, -2, -2);
    bar.maximum = messages;
    bar.progress = index.data(kDoneRole).toInt();
    bar.text = index.data().toString();
    bar.textVisible = true;
    bar.textAlignment = Qt::AlignCenter;
    style.drawControl(QStyle::CE_ProgressBar, &bar, painter, option.widget);
  }
};

}  // namespace

LanguagesPage::LanguagesPage(const Workspace& workspace, const LiveFindings& findings,
                             QWidget* parent)
    : QWidget(parent),
      workspace_(workspace),
      findings_(findings),
      list_(new QTreeWidget(this)),
      open_(AddButton("DeskLanguageOpen", &LanguagesPage::OpenWanted)),
      new_(AddButton("DeskLanguageNew", &LanguagesPage::NewWanted)),
      rename_(AddButton("DeskLanguageRename", &LanguagesPage::RenameWanted)),
      compare_(AddButton("DeskLanguageCompare", &LanguagesPage::CompareWanted)),
      proof_(AddButton("DeskLanguageProof", &LanguagesPage::ProofWanted)),
      export_(AddButton("DeskLanguageExport", &LanguagesPage::ExportWanted)),
      import_(AddButton("DeskLanguageImport", &LanguagesPage::ImportWanted)) {
  list_->setObjectName(QStringLiteral("DeskLanguages"));
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setColumnCount(kFindingsColumn + 1);
  list_->setItemDelegateForColumn(kProgressColumn, new ProgressDelegate(list_));
  list_->header()->setStretchLastSection(false);
  list_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  list_->header()->setSectionResizeMode(kProgressColumn, QHeaderView::Stretch);
  LayOut();
  connect(list_, &QTreeWidget::itemActivated, open_, &QPushButton::click);
  connect(list_, &QTreeWidget::currentItemChanged, this, &LanguagesPage::EnableButtons);
}

QPushButton* LanguagesPage::AddButton(const char* name, Wanted wanted) {
  auto* button = new QPushButton(this);
  button->setObjectName(QLatin1String(name));
  connect(button, &QPushButton::clicked, this, [this, wanted] {
    if (const auto language = CurrentLanguage()) {
      emit(this->*wanted)(*language);
    }
  });
  return button;
}

// As a language comes into being, and as it is exchanged.
void LanguagesPage::LayOut() {
  auto* buttons = new QGridLayout;
  buttons->addWidget(open_, 0, 0);
  buttons->addWidget(new_, 0, 1);
  buttons->addWidget(rename_, 1, 0);
  buttons->addWidget(compare_, 1, 1);
  buttons->addWidget(export_, 2, 0);
  buttons->addWidget(import_, 2, 1);
  buttons->addWidget(proof_, 3, 0);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(list_, 1);
  layout->addLayout(buttons);
}

void LanguagesPage::SetCaptions(const UiText& ui_text) {
  list_->setHeaderLabels({FromUtf8(ui_text[UiTextId::kLanguage]),
                          FromUtf8(ui_text[UiTextId::kProgressHeading]),
                          FromUtf8(ui_text[UiTextId::kFindings])});
  list_->setAccessibleName(FromUtf8(ui_text[UiTextId::kLanguages]));
  open_->setText(FromUtf8(ui_text[UiTextId::kOpenLanguage]));
  new_->setText(FromUtf8(ui_text[UiTextId::kNewFromLanguage]));
  rename_->setText(FromUtf8(ui_text[UiTextId::kRename]));
  compare_->setText(FromUtf8(ui_text[UiTextId::kCompareWith]));
  proof_->setText(FromUtf8(ui_text[UiTextId::kProofSheet]));
  export_->setText(FromUtf8(ui_text[UiTextId::kExport]));
  import_->setText(FromUtf8(ui_text[UiTextId::kImport]));
  shown_.clear();
}

void LanguagesPage::Mirror() {
  if (!isVisible()) {
    return;
  }
  std::vector<ListedLanguage> languages = Languages();
  if (languages == shown_) {
    return;
  }
  shown_ = std::move(languages);
  const int rows = static_cast<int>(shown_.size());
  while (list_->topLevelItemCount() > rows) {
    delete list_->takeTopLevelItem(list_->topLevelItemCount() - 1);
  }
  while (list_->topLevelItemCount() < rows) {
    list_->addTopLevelItem(new QTreeWidgetItem);
  }
  for (int row = 0; row < rows; ++row) {
    ShowLanguage(*list_->topLevelItem(row), shown_[static_cast<std::size_t>(row)]);
  }
  EnableButtons();
}

std::vector<ListedLanguage> LanguagesPage::Languages() {
  file_findings_.Follow(workspace_.set);
  std::vector<ListedLanguage> languages = ListLanguages(workspace_.set);
  for (ListedLanguage& language : languages) {
    language.findings = language.is_destination ? findings_.MessagesThatNeedWork()
                                                : file_findings_.Of(language.number);
  }
  return languages;
}

void LanguagesPage::ShowLanguage(QTreeWidgetItem& row, const ListedLanguage& language) {
  const UiText& ui_text = workspace_.ui_text;
  const Progress progress = language.progress.value_or(Progress());
  QFont font = list_->font();
  font.setBold(language.is_destination);
  row.setText(kNameColumn, FromUtf8(language.name));
  row.setFont(kNameColumn, font);
  row.setData(kProgressColumn, kDoneRole, static_cast<int>(progress.done));
  row.setData(kProgressColumn, kMessagesRole, static_cast<int>(progress.messages));
  const UiSentence done(UiTextId::kProgress, progress.done, progress.messages);
  const std::string origin = language.is_origin ? ui_text[UiTextId::kOriginHeading] : "";
  row.setText(kProgressColumn, FromUtf8(language.progress ? done.In(ui_text) : origin));
  row.setText(kFindingsColumn, language.findings ? QString::number(*language.findings) : QString());
  row.setTextAlignment(kFindingsColumn, Qt::AlignRight | Qt::AlignVCenter);
}

std::optional<int> LanguagesPage::CurrentLanguage() const {
  const int row = list_->indexOfTopLevelItem(list_->currentItem());
  return row >= 0 ? std::optional(shown_.at(static_cast<std::size_t>(row)).number) : std::nullopt;
}

void LanguagesPage::EnableButtons() {
  const MessageSet& set = workspace_.set;
  const bool chosen = CurrentLanguage().has_value();
  const bool has_origin = chosen && set.phase >= Phase::kOriginChosen;
  for (QPushButton* button : {open_, compare_, proof_, export_, import_}) {
    button->setEnabled(has_origin);
  }
  new_->setEnabled(has_origin && set.IsMes() && !set.IsFull());
  rename_->setEnabled(chosen && set.IsMes());
}

void LanguagesPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  Mirror();
}

}  // namespace vendlingua
