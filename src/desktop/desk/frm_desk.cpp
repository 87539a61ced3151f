#include "desktop/desk/frm_desk.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScreen>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <array>
#include <utility>

#include "core/desk/row_state.h"
#include "core/texts/ui_sentence.h"
#include "desktop/announce.h"
#include "desktop/desk/narrow_box.h"
#include "desktop/desk/preview_dialog.h"
#include "desktop/desk/upright_area.h"
#include "desktop/icon.h"
#include "desktop/qt_text.h"
#include "desktop/user_settings.h"

namespace vendlingua {
namespace {

constexpr QSize kFirstSize(1180, 680);
constexpr int kSuggestionKeys = 9;

// By MessageFilter.
constexpr std::array<UiTextId, 5> kFilters = {UiTextId::kAllMessages, UiTextId::kToDo,
                                              UiTextId::kChangedMessages, UiTextId::kWithFindings,
                                              UiTextId::kMarkedMessages};

QString WindowKey() { return QStringLiteral("window"); }
QString ColumnsKey() { return QStringLiteral("columns"); }
QString PartsKey() { return QStringLiteral("parts"); }
QString SecondReferenceKey() { return QStringLiteral("second_reference"); }
QString FilterKey() { return QStringLiteral("filter"); }

}  // namespace

FrmDesk::FrmDesk(Engine& engine, Dialogs& dialogs, RunCommand run)
    : engine_(engine),
      dialogs_(dialogs),
      workspace_(engine.workspace),
      run_(std::move(run)),
      find_bar_(new FindBar(this)),
      filter_(new QComboBox(this)),
      second_box_(new SecondReferenceBox(this)),
      parts_(new QSplitter(this)),
      table_(new DeskTable(workspace_, findings_, marks_, second_, parts_)),
      finder_(new Finder(workspace_, *find_bar_, table_->messages())),
      steps_(new MessageSteps(engine, dialogs, run_, *this)),
      side_(new DeskSide(engine, dialogs, findings_, marks_, run_, this)),
      status_(new QLabel(this)),
      progress_(new QLabel(this)) {
  setObjectName(QStringLiteral("FrmDesk"));
  setWindowIcon(ProgramIcon());
  filter_->setObjectName(QStringLiteral("DeskFilter"));
  status_->setObjectName(QStringLiteral("DeskStatus"));
  progress_->setObjectName(QStringLiteral("DeskProgress"));
  for (std::size_t i = 0; i < kFilters.size(); ++i) {
    filter_->addItem(QString());
  }
  LayOut();
  ConnectTable();
  ConnectFinder();
  AddShortcuts();
  SetCaptions();
  findings_.Follow(workspace_.set);
  marks_.Follow(workspace_.set);
  table_->Mirror();
  Restore();
}

void FrmDesk::LayOut() {
  status_->setTextFormat(Qt::PlainText);
  status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  filter_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  LetBeNarrow(*filter_);
  find_bar_->AddBeside(*second_box_);
  find_bar_->AddBeside(*filter_);
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(status_, 1);
  bottom->addWidget(progress_);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(find_bar_);
  layout->addWidget(parts_, 1);
  layout->addLayout(bottom);
  // On a low screen what stands beside the table scrolls; on a narrow one it makes room.
  auto* side = new UprightArea(parts_);
  side->setObjectName(QStringLiteral("DeskSide"));
  side->setWidget(side_);
  parts_->setCollapsible(parts_->indexOf(table_), false);
  parts_->setStretchFactor(0, 1);
  table_->setFocus();
}

void FrmDesk::ConnectTable() {
  connect(table_, &DeskTable::MessageChosen, this, &FrmDesk::GoTo);
  connect(table_, &DeskTable::NextToDoWanted, steps_, &MessageSteps::GoToNextToDo);
  connect(filter_, &QComboBox::currentIndexChanged, this, &FrmDesk::Filter);
  connect(second_box_, &SecondReferenceBox::Chosen, this, &FrmDesk::ChooseSecondReference);
  const CellsDelegate& cells = table_->cells();
  connect(&cells, &CellsDelegate::Edited, this, &FrmDesk::TextTyped);
  connect(&cells, &CellsDelegate::NoRoom, this,
          [this] { Tell(workspace_.ui_text[UiTextId::kNoRoomInCells]); });
  connect(&cells, &CellsDelegate::ModeChanged, this, [this](CellText::Mode mode) {
    const bool inserts = mode == CellText::Mode::kInsert;
    Tell(workspace_.ui_text[inserts ? UiTextId::kInserting : UiTextId::kOverwriting]);
  });
  // The edit box is still taking its new text when it refuses a character.
  connect(
      &cells, &CellsDelegate::Refused, this,
      [this](const QStringList& characters) {
        Tell(workspace_.ui_text[UiTextId::kCharacterRefused] + " " +
             characters.join(QLatin1Char(' ')).toStdString());
      },
      Qt::QueuedConnection);
}

void FrmDesk::ConnectFinder() {
  connect(finder_, &Finder::Found, this, &FrmDesk::GoTo);
  connect(find_bar_, &FindBar::ReplaceWanted, this, &FrmDesk::Replace);
  connect(find_bar_, &FindBar::Left, this, [this] { table_->setFocus(); });
}

void FrmDesk::AddShortcuts() {
  const auto add = [this](QKeyCombination key, auto&& command) {
    addAction(QString(), QKeySequence(key), this, command);
  };
  add(Qt::CTRL | Qt::Key_F, [this] { find_bar_->Begin(); });
  add(Qt::Key_F3, [this] { finder_->GoToNext(); });
  add(Qt::SHIFT | Qt::Key_F3, [this] { finder_->GoToPrevious(); });
  add(Qt::CTRL | Qt::Key_M, [this] { side_->StepMark(); });
  add(Qt::Key_F4, [this] { side_->Fix(); });
  for (int row = 0; row < kSuggestionKeys; ++row) {
    add(QKeyCombination(Qt::CTRL, static_cast<Qt::Key>(Qt::Key_1 + row)),
        [this, row] { side_->TakeSuggestion(row); });
  }
}

void FrmDesk::Mirror() {
  if (!isVisible()) {
    return;
  }
  if (captions_ != workspace_.ui_text) {
    SetCaptions();
  }
  findings_.Follow(workspace_.set);
  marks_.Follow(workspace_.set);
  second_.Follow(workspace_.set);
  table_->Mirror();
  second_box_->Show(workspace_.set, second_.name());
  side_->Mirror();
  const std::string& status = workspace_.window.status;
  status_->setText(FromUtf8(status));
  status_->setToolTip(FromUtf8(status));
  Announce(*status_, FromUtf8(status));
  const Progress progress = ProgressOf(workspace_.set);
  const UiSentence done(UiTextId::kProgress, progress.done, progress.messages);
  progress_->setText(workspace_.set.DestinationIsOpen() ? FromUtf8(done.In(captions_)) : QString());
}

void FrmDesk::SetCaptions() {
  captions_ = workspace_.ui_text;
  const QSignalBlocker blocker(filter_);
  const QString title = FromUtf8(captions_[UiTextId::kDesk]).remove(QLatin1Char('&'));
  setWindowTitle(title);
  setAccessibleName(title);
  find_bar_->SetCaptions(captions_);
  second_box_->SetCaptions(captions_);
  table_->MirrorCaptions();
  side_->SetCaptions(captions_);
  for (std::size_t i = 0; i < kFilters.size(); ++i) {
    filter_->setItemText(static_cast<int>(i), FromUtf8(captions_[kFilters.at(i)]));
  }
  filter_->setAccessibleName(FromUtf8(captions_[UiTextId::kFilter]));
  filter_->setToolTip(filter_->accessibleName());
  status_->setAccessibleName(FromUtf8(captions_[UiTextId::kStatus]));
}

void FrmDesk::Restore() {
  const UserSettings settings;
  resize(kFirstSize.boundedTo(screen()->availableSize()));
  restoreGeometry(settings.value(WindowKey()).toByteArray());
  table_->horizontalHeader()->restoreState(settings.value(ColumnsKey()).toByteArray());
  table_->WidenColumns();
  parts_->restoreState(settings.value(PartsKey()).toByteArray());
  side_->Restore(settings);
  second_.Choose(settings.value(SecondReferenceKey()).toString().toStdString());
  filter_->setCurrentIndex(
      qBound(0, settings.value(FilterKey()).toInt(), static_cast<int>(kFilters.size()) - 1));
}

void FrmDesk::Store() const {
  UserSettings settings;
  settings.setValue(WindowKey(), saveGeometry());
  settings.setValue(ColumnsKey(), table_->horizontalHeader()->saveState());
  settings.setValue(PartsKey(), parts_->saveState());
  side_->Store(settings);
  settings.setValue(SecondReferenceKey(), FromUtf8(second_.name()));
  settings.setValue(FilterKey(), filter_->currentIndex());
}

void FrmDesk::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && !isActiveWindow()) {
    side_->FinishRemark();
  }
}

void FrmDesk::closeEvent(QCloseEvent* event) {
  side_->FinishRemark();
  Store();
  QWidget::closeEvent(event);
}

void FrmDesk::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  Mirror();
}

void FrmDesk::GoTo(std::size_t message) {
  Run([&] { engine_.editing.GoTo(message); });
}

void FrmDesk::Filter(int filter) {
  table_->messages().SetFilter(static_cast<MessageFilter>(filter));
}

void FrmDesk::ChooseSecondReference(const std::string& name) {
  second_.Choose(name);
  Mirror();
}

void FrmDesk::Replace() {
  Run([&] {
    PreviewDialog dialog(workspace_, finder_->ReplacementPreview(), this);
    if (dialog.exec() == QDialog::Accepted) {
      engine_.editing.ReplaceTexts(dialog.Texts());
    }
  });
}

void FrmDesk::Tell(const std::string& status) {
  Run([&] { workspace_.window.status = status; });
}

}  // namespace vendlingua
