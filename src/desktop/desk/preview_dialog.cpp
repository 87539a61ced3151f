#include "desktop/desk/preview_dialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/fonts/display_font.h"
#include "desktop/fonts/widget_text.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

constexpr QSize kPreviewSize(640, 420);

enum PreviewColumn { kMessageColumn, kBeforeColumn, kAfterColumn, kRemarkColumn };

// `text` as the display will show it: texts to be put in may have blanks where the board fills
// cells.
QString Displayed(const MessageSet& set, std::size_t message, DisplayCodes text) {
  for (std::size_t cell = 0; cell < set.Width(); ++cell) {
    if (set.BoardFills(message, cell)) {
      text.resize(std::max(text.size(), cell + 1), kBlank);
      text[cell] = kPlaceholder;
    }
  }
  return ToWidgetText(text);
}

}  // namespace

PreviewDialog::PreviewDialog(const Workspace& workspace, const Preview& preview, QWidget* parent)
    : QDialog(parent),
      set_(workspace.set),
      ui_text_(workspace.ui_text),
      rows_(preview.rows),
      table_(new QTableWidget(this)) {
  setObjectName(QStringLiteral("DeskPreview"));
  setWindowTitle(FromUtf8(ui_text_[preview.title]).remove(QStringLiteral("...")));
  auto* buttons = new QDialogButtonBox(this);
  accept_ = buttons->addButton(FromUtf8(ui_text_[preview.accept]), QDialogButtonBox::AcceptRole);
  accept_->setDefault(true);
  buttons->addButton(FromUtf8(ui_text_[UiTextId::kCancel]), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel(preview.summary, this));
  layout->addWidget(table_, 1);
  layout->addWidget(buttons);
  Fill(preview, SpacedLikeCells(DisplayFont(set_.DisplayType)));
  accept_->setEnabled(!Texts().empty());
  connect(table_, &QTableWidget::itemChanged, this,
          [this] { accept_->setEnabled(!Texts().empty()); });
  resize(kPreviewSize.boundedTo(screen()->availableSize()));
}

void PreviewDialog::Fill(const Preview& preview, const QFont& display_font) {
  table_->setAccessibleName(windowTitle());
  table_->setRowCount(static_cast<int>(rows_.size()));
  QStringList headings;
  for (const UiTextId heading : {UiTextId::kNumber, preview.before, preview.after}) {
    headings += FromUtf8(ui_text_[heading]);
  }
  if (preview.remark) {
    headings += FromUtf8(ui_text_[*preview.remark]);
  }
  table_->setColumnCount(static_cast<int>(headings.size()));
  table_->setHorizontalHeaderLabels(headings);
  table_->verticalHeader()->hide();
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setTabKeyNavigation(false);
  for (int row = 0; row < table_->rowCount(); ++row) {
    FillRow(row, rows_[static_cast<std::size_t>(row)], display_font);
  }
  table_->resizeColumnsToContents();
  table_->horizontalHeader()->setStretchLastSection(true);
}

void PreviewDialog::FillRow(int row, const PreviewRow& text, const QFont& display_font) {
  auto* number = new QTableWidgetItem(QString::number(text.message));
  auto* before = new QTableWidgetItem(Displayed(set_, text.message, text.before));
  auto* after = new QTableWidgetItem(text.after ? Displayed(set_, text.message, *text.after)
                                                : FromUtf8(ui_text_[UiTextId::kDoesNotFit]));
  before->setFont(display_font);
  if (text.after) {
    after->setFont(display_font);
    number->setCheckState(Qt::Checked);
  }
  table_->setItem(row, kMessageColumn, number);
  table_->setItem(row, kBeforeColumn, before);
  table_->setItem(row, kAfterColumn, after);
  if (table_->columnCount() > kRemarkColumn) {
    table_->setItem(row, kRemarkColumn, new QTableWidgetItem(text.remark));
  }
}

std::vector<NewText> PreviewDialog::Texts() const {
  std::vector<NewText> texts;
  for (int row = 0; row < table_->rowCount(); ++row) {
    const PreviewRow& text = rows_[static_cast<std::size_t>(row)];
    if (text.after && table_->item(row, kMessageColumn)->checkState() == Qt::Checked) {
      texts.push_back({text.message, *text.after});
    }
  }
  return texts;
}

}  // namespace vendlingua
