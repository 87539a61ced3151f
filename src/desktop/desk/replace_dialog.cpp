#include "desktop/desk/replace_dialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "core/texts/ui_sentence.h"
#include "desktop/fonts/display_font.h"
#include "desktop/fonts/widget_text.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

constexpr int kColumnsOfPlan = 3;
constexpr QSize kPreviewSize(620, 420);

}  // namespace

ReplaceDialog::ReplaceDialog(const Workspace& workspace, const std::vector<ReplacedText>& plan,
                             QWidget* parent)
    : QDialog(parent), ui_text_(workspace.ui_text) {
  setObjectName(QStringLiteral("DeskReplacePreview"));
  setWindowTitle(FromUtf8(ui_text_[UiTextId::kReplace]));
  const auto fitting =
      std::ranges::count_if(plan, [](const auto& text) { return text.after.has_value(); });
  const auto others = static_cast<std::ptrdiff_t>(plan.size()) - fitting;
  auto* summary = new QLabel(
      FromUtf8(UiSentence(UiTextId::kReplacePreview, fitting, others).In(ui_text_)), this);
  auto* table = new QTableWidget(static_cast<int>(plan.size()), kColumnsOfPlan, this);
  const QFont font = SpacedLikeCells(DisplayFont(workspace.set.DisplayType));
  table->setFont(font);
  Fill(*table, plan);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
  QPushButton* replace =
      buttons->addButton(FromUtf8(ui_text_[UiTextId::kReplace]), QDialogButtonBox::AcceptRole);
  replace->setEnabled(fitting > 0);
  replace->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(summary);
  layout->addWidget(table, 1);
  layout->addWidget(buttons);
  resize(kPreviewSize);
}

void ReplaceDialog::Fill(QTableWidget& table, const std::vector<ReplacedText>& plan) {
  table.setHorizontalHeaderLabels({FromUtf8(ui_text_[UiTextId::kNumber]),
                                   FromUtf8(ui_text_[UiTextId::kBefore]),
                                   FromUtf8(ui_text_[UiTextId::kAfter])});
  table.horizontalHeader()->setFont(font());
  table.verticalHeader()->hide();
  table.setEditTriggers(QAbstractItemView::NoEditTriggers);
  table.setSelectionBehavior(QAbstractItemView::SelectRows);
  int row = 0;
  for (const ReplacedText& text : plan) {
    auto* number = new QTableWidgetItem(QString::number(text.message));
    auto* after = text.after ? new QTableWidgetItem(ToWidgetText(*text.after))
                             : new QTableWidgetItem(FromUtf8(ui_text_[UiTextId::kDoesNotFit]));
    number->setFont(font());
    if (!text.after) {
      after->setFont(font());
    }
    table.setItem(row, 0, number);
    table.setItem(row, 1, new QTableWidgetItem(ToWidgetText(text.before)));
    table.setItem(row, 2, after);
    ++row;
  }
  table.resizeColumnsToContents();
  table.horizontalHeader()->setStretchLastSection(true);
}

}  // namespace vendlingua
