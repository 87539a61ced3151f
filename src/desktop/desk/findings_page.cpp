#include "desktop/desk/findings_page.h"

#include <QHeaderView>
#include <QIcon>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "core/desk/finding_text.h"
#include "desktop/icon.h"
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
    OfferFix();
    if (const Finding* finding = Current()) {
      emit MessageChosen(finding->message);
    }
  });
  connect(fix_, &QPushButton::clicked, this, &FindingsPage::Fix);
}

void FindingsPage::SetCaptions(const UiText& ui_text) {
  list_->setHeaderLabels(
      {FromUtf8(ui_text[UiTextId::kNumber]), FromUtf8(ui_text[UiTextId::kFinding])});
  list_->setAccessibleName(FromUtf8(ui_text[UiTextId::kFindings]));
  ui_text_ = ui_text;
  shown_.clear();
  list_->clear();
}

void FindingsPage::Show(const std::vector<Finding>& findings, std::size_t current) {
  const QSignalBlocker blocker(list_);
  if (list_->topLevelItemCount() == 0 || !std::ranges::equal(findings, shown_, SameFinding)) {
    shown_ = findings;
    ShowRows();
  }
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

void FindingsPage::ShowRows() {
  list_->clear();
  QList<QTreeWidgetItem*> rows;
  const QIcon needs_work = Icon(QLatin1String("finding"));
  const QIcon note = Icon(QLatin1String("note"));
  for (const Finding& finding : shown_) {
    auto* row = new QTreeWidgetItem;
    const QString sentence = FromUtf8(SentenceOf(finding, ui_text_));
    row->setText(kNumberColumn, QString::number(finding.message));
    row->setText(kFindingColumn, sentence);
    row->setToolTip(kFindingColumn, sentence);
    row->setIcon(kNumberColumn, finding.severity == Severity::kNote ? note : needs_work);
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
