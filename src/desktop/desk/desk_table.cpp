#include "desktop/desk/desk_table.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include "desktop/desk/item_width.h"
#include "desktop/desk/word_delegate.h"
#include "desktop/fonts/display_font.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

constexpr int kNumberDigits = 5;

}  // namespace

DeskTable::DeskTable(const Workspace& workspace, const LiveFindings& findings,
                     const DocumentMarks& marks, const SecondReference& second, QWidget* parent)
    : QTableView(parent),
      workspace_(workspace),
      messages_(new MessageTable(workspace, findings, marks, second, this)),
      cells_(new CellsDelegate(workspace, *messages_, this)) {
  setObjectName(QStringLiteral("DeskTable"));
  setModel(messages_);
  setItemDelegateForColumn(MessageTable::kOrigin, cells_);
  setItemDelegateForColumn(MessageTable::kDestination, cells_);
  auto* words = new WordDelegate(this);
  setItemDelegateForColumn(MessageTable::kState, words);
  setItemDelegateForColumn(MessageTable::kMark, words);
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
  setShowGrid(false);
  setAlternatingRowColors(true);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setStretchLastSection(true);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  sortByColumn(MessageTable::kNumber, Qt::AscendingOrder);
  setSortingEnabled(true);
  connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& current) {
            if (!mirroring_ && current.isValid()) {
              emit MessageChosen(messages_->MessageOf(current));
            }
          });
  connect(messages_, &QAbstractItemModel::modelReset, this, &DeskTable::ShowCurrentMessage);
  connect(cells_, &CellsDelegate::Entered, this, &DeskTable::Enter);
}

void DeskTable::Mirror() {
  messages_->Mirror();
  ShowDisplayType();
  SetColumnWidths();
  SetRowHeight();
  ShowCurrentMessage();
}

void DeskTable::ShowDisplayType() {
  if (display_type_ != workspace_.set.DisplayType) {
    display_type_ = workspace_.set.DisplayType;
    cells_->SetDisplayFont(SpacedLikeCells(DisplayFont(*display_type_)));
    viewport()->update();
  }
}

void DeskTable::MirrorCaptions() {
  setAccessibleName(FromUtf8(workspace_.ui_text[UiTextId::kDesk]).remove(QLatin1Char('&')));
  messages_->MirrorHeadings();
  WidenColumns();
}

// Those of the texts have the width that the user wants.
void DeskTable::WidenColumns() {
  for (const int column : {MessageTable::kNumber, MessageTable::kCells, MessageTable::kState}) {
    setColumnWidth(column, qMax(columnWidth(column), LeastWidth(column)));
  }
}

// Another set has other widths. Within one set the columns are the user's.
void DeskTable::SetColumnWidths() {
  if (width_ == workspace_.set.Width()) {
    return;
  }
  width_ = workspace_.set.Width();
  for (int column = 0; column < MessageTable::kColumns; ++column) {
    setColumnWidth(column, LeastWidth(column));
  }
}

int DeskTable::LeastWidth(int column) const {
  const int heading = horizontalHeader()->sectionSizeHint(column);
  const int letter = fontMetrics().horizontalAdvance(QLatin1Char('0'));
  switch (column) {
    case MessageTable::kNumber:
      return qMax(heading, letter * (kNumberDigits + 2));
    case MessageTable::kCells:
      return qMax(heading, letter * (kNumberDigits + 4));
    case MessageTable::kState:
      return qMax(heading, StateWidth());
    case MessageTable::kMark:
      return heading;
    default:
      return qMax(heading, cells_->sizeHint({}, {}).width());
  }
}

int DeskTable::StateWidth() const {
  int width = 0;
  for (const UiTextId word : MessageTable::StateWords()) {
    width = qMax(width, ItemWidth(*this, FromUtf8(workspace_.ui_text[word])));
  }
  return width;
}

void DeskTable::SetRowHeight() {
  const int height = cells_->sizeHint({}, {}).height();
  if (verticalHeader()->defaultSectionSize() != height) {
    verticalHeader()->setDefaultSectionSize(height);
    scrollTo(currentIndex());
  }
}

void DeskTable::ShowCurrentMessage() {
  const QScopedValueRollback<bool> mirroring(mirroring_, true);
  const int column =
      currentIndex().isValid() ? currentIndex().column() : MessageTable::kDestination;
  const QModelIndex current = messages_->IndexOf(workspace_.set.current_message, column);
  if (current == currentIndex()) {
    return;
  }
  if (current.isValid()) {
    setCurrentIndex(current);
  } else {
    selectionModel()->clear();
  }
}

// A key that types something edits the destination, in whichever column the current cell is.
void DeskTable::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    Enter(event->modifiers() & ~Qt::KeypadModifier);
    return;
  }
  const bool types = !event->text().isEmpty() && event->text().front().isPrint();
  if (types || event->key() == Qt::Key_F2) {
    const QScopedValueRollback<bool> same_row(mirroring_, true);
    setCurrentIndex(currentIndex().siblingAtColumn(MessageTable::kDestination));
  }
  QTableView::keyPressEvent(event);
}

void DeskTable::Enter(Qt::KeyboardModifiers modifiers) {
  setFocus();
  if (modifiers == Qt::ControlModifier) {
    emit NextToDoWanted();
  } else if (modifiers == Qt::NoModifier) {
    const QModelIndex below = currentIndex().siblingAtRow(currentIndex().row() + 1);
    if (below.isValid()) {
      setCurrentIndex(below);
    }
  }
}

}  // namespace vendlingua
