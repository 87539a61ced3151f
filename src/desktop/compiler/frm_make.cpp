#include "desktop/compiler/frm_make.h"

#include <QEvent>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "core/operations/rename_language.h"
#include "core/presentation/compiler_status.h"
#include "core/presentation/compiler_view.h"
#include "desktop/announce.h"
#include "desktop/element_name.h"
#include "desktop/icon.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

constexpr int kRowsOfOneColumn = 10;
constexpr int kMostColumns = 3;
constexpr int kNarrowest = 400;  // pixels
// Room for the names of all files that a run writes.
constexpr int kStatusLines = 3;
constexpr std::array<const char*, 2> kPageCaptions = {"1 - 50", "51 - 100"};

QFont NameFont(const QFont& window_font) {
  QFont font = window_font;
  font.setFamily(QStringLiteral("Courier New"));
  font.setStyleHint(QFont::Monospace);
  return font;
}

int Columns(int entries) {
  return std::clamp((entries + kRowsOfOneColumn - 1) / kRowsOfOneColumn, 1, kMostColumns);
}

}  // namespace

FrmMake::FrmMake(const CompilerParts& parts, RunCommand run, QWidget* main_window)
    : QWidget(main_window, Qt::Window),
      parts_(parts),
      run_(std::move(run)),
      SSTab1_(new QTabWidget(this)),
      Shape1_(new QFrame(this)),
      Command1_(new QPushButton(QStringLiteral("Compiler"), this)),
      Command2_(new QPushButton(this)),
      status_(new QLabel(this)) {
  setObjectName(QStringLiteral("FrmMake"));
  setWindowTitle(QStringLiteral("MAkE"));
  setAccessibleName(windowTitle());
  setWindowIcon(ProgramIcon());
  setAttribute(Qt::WA_DeleteOnClose);
  SSTab1_->setObjectName(QStringLiteral("SSTab1"));
  BuildEntries();
  BuildButtons();
  OrderTabStops();
  setMinimumWidth(kNarrowest);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(SSTab1_, 1);
  layout->addWidget(Shape1_);
  layout->addWidget(status_);
  auto* rename = new QShortcut(QKeySequence(Qt::Key_F2), this);
  connect(rename, &QShortcut::activated, this, &FrmMake::RenameFocused);
}

void FrmMake::BuildEntries() {
  for (std::size_t page = 0; page < kPages; ++page) {
    auto* scroll_area = new QScrollArea(SSTab1_);
    scroll_area->setFrameShape(QFrame::NoFrame);
    scroll_area->setWidgetResizable(true);
    scroll_area->setFocusPolicy(Qt::NoFocus);
    pages_.at(page) = new QWidget;
    scroll_area->setWidget(pages_.at(page));
    SSTab1_->addTab(scroll_area, QLatin1String(kPageCaptions.at(page)));
  }
  const QFont name_font = NameFont(font());
  for (std::size_t i = 1; i < Check1_.size(); ++i) {
    QWidget* page = pages_.at((i - 1) / kPageEntries);
    Check1_.at(i) = new QCheckBox(page);
    Check1_.at(i)->setObjectName(ElementName("Check1", i));
    Label1_.at(i) = new QLabel(page);
    Label1_.at(i)->setObjectName(ElementName("Label1", i));
    Label1_.at(i)->setTextFormat(Qt::PlainText);
    Label1_.at(i)->setFont(name_font);
    Label1_.at(i)->installEventFilter(this);
    connect(Check1_.at(i), &QCheckBox::clicked, this,
            [this, i](bool ticked) { Tick(static_cast<int>(i), ticked); });
  }
}

void FrmMake::BuildButtons() {
  Shape1_->setObjectName(QStringLiteral("Shape1"));
  Shape1_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  Command1_->setObjectName(QStringLiteral("Command1"));
  Command2_->setObjectName(QStringLiteral("Command2"));
  status_->setObjectName(QStringLiteral("Status"));
  status_->setTextFormat(Qt::PlainText);
  status_->setWordWrap(true);
  status_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  status_->setMinimumHeight(kStatusLines * status_->fontMetrics().lineSpacing());
  auto* buttons = new QHBoxLayout(Shape1_);
  buttons->addWidget(Command1_);
  buttons->addStretch();
  buttons->addWidget(Command2_);
  connect(Command1_, &QPushButton::clicked, this, &FrmMake::Compile);
  connect(Command2_, &QPushButton::clicked, this, &QWidget::close);
}

// From the languages to the buttons, as they stand in the window.
void FrmMake::OrderTabStops() {
  QWidget* before = SSTab1_;
  for (std::size_t i = 1; i < Check1_.size(); ++i) {
    setTabOrder(before, Check1_.at(i));
    before = Check1_.at(i);
  }
  setTabOrder(before, Command1_);
  setTabOrder(Command1_, Command2_);
}

bool FrmMake::Load() {
  if (!parts_.writer.NonSave()) {
    return false;
  }
  parts_.state = CompilerState();
  const MessageSet& set = parts_.workspace.set;
  if (set.IsMes()) {
    SSTab1_->setTabText(SSTab1_->currentIndex(), QStringLiteral("1-50"));
    parts_.state.status = SelectionStatus(parts_.state, set.LangCount, parts_.workspace.ui_text);
  }
  SSTab1_->setVisible(set.IsMes());
  Mirror();
  QWidget* first = set.IsMes() ? static_cast<QWidget*>(Check1_.at(1)) : Command1_;
  first->setFocus();
  return true;
}

// Another program may add languages to the file while the window is open.
void FrmMake::LayOutPages() {
  const std::size_t languages = parts_.workspace.set.language_names.size();
  if (languages_laid_out_ == languages) {
    return;
  }
  languages_laid_out_ = languages;
  for (std::size_t page = 0; page < kPages; ++page) {
    LayOutPage(page);
  }
}

// As many columns as the number of languages calls for; a page that is larger than the screen
// scrolls.
void FrmMake::LayOutPage(std::size_t page) {
  const CompilerView view = CompilerViewOf(parts_.workspace.set, parts_.state);
  std::vector<std::size_t> shown;
  for (std::size_t i = page * kPageEntries + 1; i <= (page + 1) * kPageEntries; ++i) {
    if (view.Check1.at(i).visible) {
      shown.push_back(i);
    }
  }
  const int entries = static_cast<int>(shown.size());
  const int columns = Columns(entries);
  const int rows = (entries + columns - 1) / columns;
  delete pages_.at(page)->layout();
  auto* grid = new QGridLayout(pages_.at(page));
  for (int n = 0; n < entries; ++n) {
    const std::size_t i = shown[static_cast<std::size_t>(n)];
    grid->addWidget(Check1_.at(i), n % rows, n / rows * 2);
    grid->addWidget(Label1_.at(i), n % rows, n / rows * 2 + 1);
    grid->setColumnStretch(n / rows * 2 + 1, 1);
  }
  grid->setRowStretch(rows, 1);
  SSTab1_->setTabEnabled(static_cast<int>(page), page == 0 || entries > 0);
  auto* scroll_area = static_cast<QScrollArea*>(SSTab1_->widget(static_cast<int>(page)));
  const QSize screen = this->screen()->availableSize() * 2 / 3;
  const QSize bars(scroll_area->verticalScrollBar()->sizeHint().width(), 0);
  scroll_area->setMinimumSize((pages_.at(page)->sizeHint() + bars).boundedTo(screen));
}

void FrmMake::Mirror() {
  const CompilerState& state = parts_.state;
  const CompilerView view = CompilerViewOf(parts_.workspace.set, state);
  for (std::size_t i = 1; i < Check1_.size(); ++i) {
    const CompilerView::Entry& entry = view.Check1.at(i);
    Check1_.at(i)->setVisible(entry.visible);
    Check1_.at(i)->setEnabled(entry.enabled);
    Check1_.at(i)->setChecked(entry.ticked);
    Check1_.at(i)->setAccessibleName(FromUtf8(entry.caption));
    Label1_.at(i)->setVisible(entry.visible);
    Label1_.at(i)->setText(FromUtf8(entry.caption));
  }
  LayOutPages();
  const UiText& ui_text = parts_.workspace.ui_text;
  Command1_->setText(FromUtf8(ui_text[UiTextId::kCompile]));
  Command1_->setEnabled(view.Command1Enabled);
  Command2_->setText(FromUtf8(ui_text[UiTextId::kClose]));
  Command2_->setEnabled(view.Command2Enabled);
  status_->setText(FromUtf8(state.status));
  Announce(*status_, status_->text());
  status_->setAccessibleName(FromUtf8(ui_text[UiTextId::kStatus]));
  if (state.hourglass) {
    setCursor(Qt::WaitCursor);
  } else {
    unsetCursor();
  }
}

void FrmMake::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
    Mirror();
    emit Activated();
  }
}

void FrmMake::closeEvent(QCloseEvent* event) {
  if (!closing_.Postpones(*event)) {
    QWidget::closeEvent(event);
  }
}

bool FrmMake::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress &&
      static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
    const auto label = std::find(Label1_.begin(), Label1_.end(), watched);
    if (label != Label1_.end()) {
      Rename(static_cast<int>(label - Label1_.begin()));
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

// What the right mouse button does, for the keyboard.
void FrmMake::RenameFocused() {
  const auto check_box = std::find(Check1_.begin(), Check1_.end(), focusWidget());
  if (check_box != Check1_.end()) {
    Rename(static_cast<int>(check_box - Check1_.begin()));
  }
}

void FrmMake::Rename(int language) {
  Run([&] { RenameLanguage(parts_.workspace, parts_.dialogs, language); });
}

void FrmMake::Tick(int language, bool ticked) {
  Run([&] {
    const int lang_count = parts_.workspace.set.LangCount;
    parts_.state.ticked.at(static_cast<std::size_t>(language)) = ticked;
    parts_.state.status = SelectionStatus(parts_.state, lang_count, parts_.workspace.ui_text);
  });
}

void FrmMake::Compile() {
  Run([&] {
    const CompileOutcome outcome = parts_.compiler.Compile();
    parts_.state.status = WrittenStatus(outcome, parts_.workspace.ui_text);
  });
  // While it was disabled, another control had the focus.
  Command1_->setFocus();
}

void FrmMake::Run(const std::function<void()>& command) {
  closing_.During([&] { run_(command, *this); });
}

}  // namespace vendlingua
