#include "desktop/desk/languages_page.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "core/texts/ui_sentence.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

constexpr int kNameColumn = 0;
constexpr int kProgressColumn = 1;
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

LanguagesPage::LanguagesPage(const Workspace& workspace, QWidget* parent)
    : QWidget(parent),
      workspace_(workspace),
      list_(new QTreeWidget(this)),
      open_(new QPushButton(this)),
      new_(new QPushButton(this)),
      rename_(new QPushButton(this)) {
  list_->setObjectName(QStringLiteral("DeskLanguages"));
  open_->setObjectName(QStringLiteral("DeskLanguageOpen"));
  new_->setObjectName(QStringLiteral("DeskLanguageNew"));
  rename_->setObjectName(QStringLiteral("DeskLanguageRename"));
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setColumnCount(2);
  list_->setItemDelegateForColumn(kProgressColumn, new ProgressDelegate(list_));
  list_->header()->setSectionResizeMode(kNameColumn, QHeaderView::ResizeToContents);
  auto* buttons = new QHBoxLayout;
  for (QPushButton* button : {open_, new_, rename_}) {
    buttons->addWidget(button);
  }
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(list_, 1);
  layout->addLayout(buttons);
  const auto ask = [this](auto* button, void (LanguagesPage::*wanted)(int)) {
    connect(button, &QPushButton::clicked, this, [this, wanted] {
      if (const auto language = CurrentLanguage()) {
        emit(this->*wanted)(*language);
      }
    });
  };
  ask(open_, &LanguagesPage::OpenWanted);
  ask(new_, &LanguagesPage::NewWanted);
  ask(rename_, &LanguagesPage::RenameWanted);
  connect(list_, &QTreeWidget::itemActivated, open_, &QPushButton::click);
  connect(list_, &QTreeWidget::currentItemChanged, this, &LanguagesPage::EnableButtons);
}

void LanguagesPage::SetCaptions(const UiText& ui_text) {
  list_->setHeaderLabels(
      {FromUtf8(ui_text[UiTextId::kLanguage]), FromUtf8(ui_text[UiTextId::kProgressHeading])});
  list_->setAccessibleName(FromUtf8(ui_text[UiTextId::kLanguages]));
  open_->setText(FromUtf8(ui_text[UiTextId::kOpenLanguage]));
  new_->setText(FromUtf8(ui_text[UiTextId::kNewFromLanguage]));
  rename_->setText(FromUtf8(ui_text[UiTextId::kRename]));
  shown_.clear();
}

void LanguagesPage::Mirror() {
  if (!isVisible()) {
    return;
  }
  std::vector<ListedLanguage> languages = ListLanguages(workspace_.set);
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
}

std::optional<int> LanguagesPage::CurrentLanguage() const {
  const int row = list_->indexOfTopLevelItem(list_->currentItem());
  return row >= 0 ? std::optional(shown_.at(static_cast<std::size_t>(row)).number) : std::nullopt;
}

void LanguagesPage::EnableButtons() {
  const MessageSet& set = workspace_.set;
  const bool chosen = CurrentLanguage().has_value();
  open_->setEnabled(chosen && set.phase >= Phase::kOriginChosen);
  new_->setEnabled(chosen && set.phase >= Phase::kOriginChosen && set.IsMes() && !set.IsFull());
  rename_->setEnabled(chosen && set.IsMes());
}

void LanguagesPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  Mirror();
}

}  // namespace vendlingua
