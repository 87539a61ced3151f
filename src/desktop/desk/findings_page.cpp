#include "desktop/desk/findings_page.h"

#include <QHeaderView>
#include <QIcon>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "core/desk/finding_text.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

constexpr int kNumberColumn = 0;
constexpr int kFindingColumn = 1;

bool SameFinding(const Finding& a, const Finding& b) {
  return a.message == b.message && a.rule == b.rule && a.text == b.text;
}

}  // namespace

FindingsPage::FindingsPage(QWidget* parent)
    : QWidget(parent), list_(new QTreeWidget(this)), fix_(new QPushButton(this)) {
  list_->setObjectName(QStringLiteral("DeskFindings"));
  fix_->setObjectName(QStringLiteral("DeskFix"));
  list_->setColumnCount(2);
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->header()->setSectionResizeMode(kNumberColumn, QHeaderView::ResizeToContents);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(list_, 1);
  layout->addWidget(fix_, 0, Qt::AlignLeft);
  connect(list_, &QTreeWidget::currentItemChanged, this, [this] {
    const Finding* finding = Current();
    fix_->setEnabled(finding != nullptr && finding->fix);
    if (finding != nullptr) {
      emit MessageChosen(finding->message);
    }
  });
  connect(fix_, &QPushButton::clicked, this, &FindingsPage::Fix);
}

void FindingsPage::SetCaptions(const UiText& ui_text) {
  list_->setHeaderLabels(
      {FromUtf8(ui_text[UiTextId::kNumber]), FromUtf8(ui_text[UiTextId::kFinding])});
  list_->setAccessibleName(FromUtf8(ui_text[UiTextId::kFindings]));
  fix_->setText(FromUtf8(ui_text[UiTextId::kFix]) + QStringLiteral(" (F4)"));
  shown_.clear();
}

void FindingsPage::Show(const std::vector<Finding>& findings, std::size_t current,
                        const UiText& ui_text) {
  const QSignalBlocker blocker(list_);
  if (list_->topLevelItemCount() == 0 || !std::ranges::equal(findings, shown_, SameFinding)) {
    shown_ = findings;
    ShowRows(ui_text);
  }
  Choose(current);
  const Finding* finding = Current();
  fix_->setEnabled(finding != nullptr && finding->fix);
}

void FindingsPage::ShowRows(const UiText& ui_text) {
  list_->clear();
  QList<QTreeWidgetItem*> rows;
  for (const Finding& finding : shown_) {
    auto* row = new QTreeWidgetItem;
    const QString sentence = FromUtf8(SentenceOf(finding, ui_text));
    row->setText(kNumberColumn, QString::number(finding.message));
    row->setText(kFindingColumn, sentence);
    row->setToolTip(kFindingColumn, sentence);
    if (finding.severity != Severity::kNote) {
      row->setIcon(kNumberColumn, QIcon(QStringLiteral(":/icons/finding.svg")));
    }
    rows.append(row);
  }
  list_->addTopLevelItems(rows);
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
