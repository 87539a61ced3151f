#include "desktop/desk/findings_page.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>
#include <utility>

#include "core/desk/finding_text.h"
#include "desktop/desk/item_width.h"
#include "desktop/icon.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

constexpr int kNumberColumn = 0;
constexpr int kFindingColumn = 1;

// Makes a row as high as its sentence needs in the width of its column.
class WrappingDelegate : public QStyledItemDelegate {
 public:
  explicit WrappingDelegate(QTreeWidget& list) : QStyledItemDelegate(&list), list_(list) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem in_column = option;
    in_column.rect = QRect(QPoint(), QSize(list_.columnWidth(index.column()), 1));
    return QStyledItemDelegate::sizeHint(in_column, index);
  }

 private:
  const QTreeWidget& list_;
};

bool SameFinding(const Finding& a, const Finding& b) {
  return a.message == b.message && a.rule == b.rule && a.text == b.text;
}

}  // namespace

FindingsPage::FindingsPage(QWidget* parent)
    : QWidget(parent),
      list_(new QTreeWidget(this)),
      fix_(new QPushButton(this)),
      needs_work_(Icon(QLatin1String("finding"))),
      note_(Icon(QLatin1String("note"))) {
  list_->setObjectName(QStringLiteral("DeskFindings"));
  fix_->setObjectName(QStringLiteral("DeskFix"));
  list_->setColumnCount(2);
  list_->setRootIsDecorated(false);
  list_->setWordWrap(true);
  list_->setItemDelegateForColumn(kFindingColumn, new WrappingDelegate(*list_));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(list_, 1);
  layout->addWidget(fix_, 0, Qt::AlignLeft);
  connect(list_, &QTreeWidget::currentItemChanged, this, [this] {
    OfferFix();
    if (const Finding* finding = Current()) {
      emit MessageChosen(finding->message);
    }
  });
  connect(list_->header(), &QHeaderView::sectionResized, list_, &QTreeWidget::doItemsLayout,
          Qt::QueuedConnection);
  connect(fix_, &QPushButton::clicked, this, &FindingsPage::Fix);
}

void FindingsPage::SetCaptions(const UiText& ui_text) {
  list_->setHeaderLabels(
      {FromUtf8(ui_text[UiTextId::kNumber]), FromUtf8(ui_text[UiTextId::kFinding])});
  list_->setAccessibleName(FromUtf8(ui_text[UiTextId::kFindings]));
  list_->setColumnWidth(kNumberColumn, qMax(list_->header()->sectionSizeHint(kNumberColumn),
                                            ItemWidth(*list_, QStringLiteral("00000"))));
  ui_text_ = ui_text;
  shown_.clear();
  list_->clear();
}

void FindingsPage::Show(std::vector<Finding> findings, std::size_t current) {
  const QSignalBlocker blocker(list_);
  ShowRows(std::move(findings));
  Choose(current);
  OfferFix();
}

void FindingsPage::OfferFix() {
  const Finding* finding = Current();
  const bool has_fix = finding != nullptr && finding->fix;
  const UiTextId name = has_fix ? FixNameOf(*finding) : UiTextId::kFix;
  fix_->setText(FromUtf8(ui_text_[name]) + QStringLiteral(" (F4)"));
  fix_->setEnabled(has_fix);
}

QTreeWidgetItem* FindingsPage::NewRow(const Finding& finding) const {
  auto* row = new QTreeWidgetItem;
  const QString sentence = FromUtf8(SentenceOf(finding, ui_text_));
  row->setText(kNumberColumn, QString::number(finding.message));
  row->setText(kFindingColumn, sentence);
  row->setToolTip(kFindingColumn, sentence);
  row->setIcon(kNumberColumn, finding.severity == Severity::kNote ? note_ : needs_work_);
  return row;
}

// An edit changes few of many rows: the others stay.
void FindingsPage::ShowRows(std::vector<Finding> findings) {
  const auto [above, was_above] =
      std::mismatch(findings.begin(), findings.end(), shown_.begin(), shown_.end(), SameFinding);
  const auto [below, was_below] =
      std::mismatch(findings.rbegin(), std::make_reverse_iterator(above), shown_.rbegin(),
                    std::make_reverse_iterator(was_above), SameFinding);
  const auto first = static_cast<int>(above - findings.begin());
  for (auto gone = was_above; gone != was_below.base(); ++gone) {
    delete list_->takeTopLevelItem(first);
  }
  QList<QTreeWidgetItem*> rows;
  for (auto come = above; come != below.base(); ++come) {
    rows.append(NewRow(*come));
  }
  list_->insertTopLevelItems(first, rows);
  shown_ = std::move(findings);
}

// The finding that is chosen stays when it is of this message.
void FindingsPage::Choose(std::size_t message) {
  if (Current() != nullptr && Current()->message == message) {
    return;
  }
  const auto is_fixable = [&](const Finding& finding) {
    return finding.message == message && finding.fix;
  };
  auto found = std::ranges::find_if(shown_, is_fixable);
  found = found == shown_.end() ? std::ranges::find(shown_, message, &Finding::message) : found;
  list_->setCurrentItem(found == shown_.end()
                            ? nullptr
                            : list_->topLevelItem(static_cast<int>(found - shown_.begin())));
}

void FindingsPage::Fix() {
  const Finding* finding = Current();
  if (finding != nullptr && finding->fix) {
    emit FixWanted({finding->message, *finding->fix});
  }
}

const Finding* FindingsPage::Current() const {
  const int row = list_->indexOfTopLevelItem(list_->currentItem());
  return row >= 0 ? &shown_.at(static_cast<std::size_t>(row)) : nullptr;
}

}  // namespace vendlingua
