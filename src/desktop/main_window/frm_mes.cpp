#include "desktop/main_window/frm_mes.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <algorithm>
#include <exception>
#include <memory>
#include <string>
#include <utility>

#include "core/operations/exit.h"
#include "core/operations/interface_language.h"
#include "core/operations/outside_changes.h"
#include "core/platform/errors.h"
#include "core/presentation/twips.h"
#include "core/presentation/view_state.h"
#include "desktop/icon.h"
#include "desktop/main_window/file_drop.h"
#include "desktop/qt_text.h"
#include "desktop/users_guide.h"

namespace vendlingua {
namespace {

constexpr int kWindowWidth = 5205;  // twips
constexpr int kTypingPause = 1000;  // milliseconds

// All menus have to fit the width of the window in every language.
constexpr QLatin1String kMenuBarStyle(
    "QMenuBar { font-size: 12px; background: palette(window); border: none; }"
    "QMenuBar::item { padding: 3px 4px; background: transparent; }"
    "QMenuBar::item:selected { background: palette(highlight); color: palette(highlighted-text); }"
    "QMenuBar::item:disabled { color: palette(placeholder-text); }");

// The title is the open file alone; who only hears it has to know whose window it is.
QString SpokenTitle(const QString& title) {
  const QString program = FromUtf8(std::string(kApplicationTitle));
  return title == program ? title : QStringLiteral("%1 - %2").arg(title, program);
}

}  // namespace

FrmMes::FrmMes(Engine& engine, QtDialogs& dialogs, ProgramStarter& starter)
    : engine_(engine),
      dialogs_(dialogs),
      starter_(starter),
      menus_(new MainMenus(*menuBar(), *this)),
      panel_(new EditorPanel(this)),
      steps_(new MessageSteps(
          engine, dialogs, [this](const auto& command, QWidget& window) { RunIn(window, command); },
          *this)),
      edit_keeper_(engine, [this] { Mirror(); }),
      dialogs_seen_(dialogs.opened()) {
  setObjectName(QStringLiteral("FrmMes"));
  setWindowIcon(ProgramIcon());
  setContextMenuPolicy(Qt::NoContextMenu);
  menuBar()->setStyleSheet(kMenuBarStyle);
  setCentralWidget(panel_);
  ConnectMenus();
  ConnectPanel();
  steps_->AddPageKeys();
  panel_->OfferInEditMenu(menus_->HistoryEntries());
  typing_pause_.setSingleShot(true);
  typing_pause_.setInterval(kTypingPause);
  connect(&typing_pause_, &QTimer::timeout, this, [this] { engine_.editing.EndTyping(); });
  connect(&file_watch_, &FileWatch::Changed, this, &FrmMes::LookAtFile);
  dialogs_.Attach([this] { Mirror(); }, engine_.workspace.ui_text);
  Mirror();
}

void FrmMes::ConnectMenus() {
  const auto run = [this](auto signal, auto command) {
    connect(menus_, signal, this,
            [this, command](auto... arguments) { Run([&] { command(arguments...); }); });
  };
  run(&MainMenus::OpenChosen, [this] { OfferEdits(engine_.opener.Open()); });
  run(&MainMenus::SaveChosen, [this] { engine_.writer.Save(); });
  run(&MainMenus::SaveAsChosen, [this] { engine_.writer.SaveAs(); });
  run(&MainMenus::OriginChosen, [this](int i) { engine_.languages.ChooseOrigin(i); });
  run(&MainMenus::DestinationChosen, [this](int i) { engine_.languages.ChooseDestination(i); });
  run(&MainMenus::NewLanguageChosen, [this](int i) { engine_.languages.StartNewLanguage(i); });
  run(&MainMenus::NamedLanguageWanted, [this] { engine_.languages.StartNamedLanguage(); });
  connect(menus_, &MainMenus::RecentChosen, this, &FrmMes::OpenFile);
  run(&MainMenus::DisplayTypeChosen,
      [this](int i) { engine_.editing.ChooseDisplayType(static_cast<std::size_t>(i)); });
  run(&MainMenus::InterfaceLanguageChosen, [this](int i) { ChooseLanguage(i); });
  run(&MainMenus::CopyChosen, [this] { engine_.editing.CopyOrigin(); });
  run(&MainMenus::UndoChosen, [this] { engine_.editing.Undo(); });
  run(&MainMenus::RedoChosen, [this] { engine_.editing.Redo(); });
  run(&MainMenus::CompilerChosen, [this] { OpenCompiler(); });
  run(&MainMenus::DeskChosen, [this] { OpenDesk(); });
  run(&MainMenus::HelpChosen, [this] { OpenGuide(engine_.workspace); });
  run(&MainMenus::InfoChosen, [this] { OpenInfo(); });
  connect(menus_, &MainMenus::ExitChosen, this, &QWidget::close);
}

void FrmMes::ConnectPanel() {
  const auto run = [this](auto signal, auto command) {
    connect(panel_, signal, this,
            [this, command](const auto&... arguments) { Run([&] { command(arguments...); }); });
  };
  run(&EditorPanel::Scrolled,
      [this](int value) { engine_.editing.GoTo(static_cast<std::size_t>(value)); });
  run(&EditorPanel::TextChanged, [this](const DisplayCodes& text) { ChangeText(text); });
  run(&EditorPanel::KeyPressed, [this] { engine_.editing.KeyPressed(); });
  run(&EditorPanel::CharacterDropped,
      [this](DisplayCode code, int x, int box_width) { engine_.editing.Drop(code, x, box_width); });
  connect(panel_, &EditorPanel::NumberClicked, steps_, &MessageSteps::AskForMessage);
  connect(panel_, &EditorPanel::DetailsWanted, this, &FrmMes::ShowDetails);
  connect(new FileDrop(*this), &FileDrop::Dropped, this, &FrmMes::OpenFile);
  run(&EditorPanel::HeightToggled, [this] { ToggleHeight(); });
  run(&EditorPanel::MessageAdded, [this] { engine_.editing.AddMessage(dialogs_); });
  connect(panel_, &EditorPanel::CopyMenuWanted, this,
          [this](const QPoint& position) { menus_->PopUpCopyMenu(panel_->mapToGlobal(position)); });
  // The edit box is still taking its new text when it refuses a character.
  connect(
      panel_, &EditorPanel::CharactersRefused, this,
      [this](const QStringList& characters) {
        Run([&] {
          engine_.workspace.window.status = engine_.workspace.ui_text[UiTextId::kCharacterRefused] +
                                            " " + characters.join(QLatin1Char(' ')).toStdString();
        });
      },
      Qt::QueuedConnection);
}

void FrmMes::OpenFile(const std::filesystem::path& file) {
  Run([&] { OfferEdits(engine_.opener.Open(file)); });
}

void FrmMes::OfferEdits(OpenOutcome outcome) {
  if (outcome == OpenOutcome::kOpened) {
    engine_.unsaved_edits.Offer();
  }
}

void FrmMes::RunIn(QWidget& window, const std::function<void()>& command) {
  const QtDialogs::Owner owner(dialogs_, window);
  closing_.During([&] {
    engine_.workspace.window.status.clear();
    try {
      command();
    } catch (const std::exception& error) {
      dialogs_.MessageBox(
          {MessageIcon::kCritical, MessageOf(error, engine_.workspace.ui_text), "ERROR"});
    }
    Mirror();
  });
}

void FrmMes::Mirror() {
  const Workspace& workspace = engine_.workspace;
  const ViewState view = ViewOf(workspace);
  qt_texts_.Follow(workspace);
  file_watch_.Follow(workspace.set.CurrentFileName);
  setWindowTitle(FromUtf8(view.caption));
  if (const QString spoken = SpokenTitle(windowTitle()); spoken != accessibleName()) {
    setAccessibleName(spoken);
  }
  setFixedSize(PixelsFromTwips(kWindowWidth), HeightOnScreen(PixelsFromTwips(view.height)));
  menus_->Show(MenusOf(workspace));
  menus_->NoteFile(workspace.set);
  if (captions_ != workspace.ui_text) {
    captions_ = workspace.ui_text;
    panel_->SetEditorCaptions(captions_);
  }
  panel_->Show(view, workspace.ui_text);
  if (engine_.compiler_state.hourglass) {
    setCursor(Qt::WaitCursor);
  } else {
    unsetCursor();
  }
  if (frm_desk_) {
    frm_desk_->Mirror();
  }
  if (frm_make_) {
    frm_make_->Mirror();
  }
  edit_keeper_.Follow();
}

// Not while a command works with the document.
void FrmMes::LookAtFile() {
  if (closing_.IsRunning()) {
    file_watch_.LookAgain();
  } else if (NoticeOutsideChange(engine_.workspace) != OutsideChange::kNone) {
    Mirror();
  }
}

void FrmMes::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::ActivationChange || !isActiveWindow()) {
    return;
  }
  // A message box that closes gives the focus back to its window: that is no activation.
  if (dialogs_seen_ == dialogs_.opened()) {
    Form_Activate();
  }
  dialogs_seen_ = dialogs_.opened();
}

void FrmMes::Form_Activate() {
  if (frm_make_) {
    frm_make_->close();
  }
  if (!isMinimized() && !isMaximized()) {
    move(x(), PixelsFromTwips(window_top_.Activate(TwipsFromPixels(y()))));
  }
}

void FrmMes::closeEvent(QCloseEvent* event) {
  if (closing_.Postpones(*event)) {
    return;
  }
  bool may_end = false;
  Run([&] { may_end = Form_Unload(engine_.workspace, starter_, engine_.writer); });
  if (!may_end) {
    event->ignore();
    return;
  }
  KeepEdits();
  if (frm_make_) {
    frm_make_->close();
  }
  if (frm_desk_) {
    frm_desk_->close();
  }
  if (frm_info_) {
    frm_info_->close();
  }
  event->accept();
}

void FrmMes::ChooseLanguage(int index) {
  ChooseInterfaceLanguage(engine_.workspace, dialogs_, static_cast<std::size_t>(index));
}

void FrmMes::ChangeText(const DisplayCodes& text) {
  engine_.editing.ChangeText(text);
  typing_pause_.start();
}

// The window never leaves the screen at its top.
void FrmMes::ToggleHeight() {
  const int down = PixelsFromTwips(engine_.editing.ToggleHeight());
  move(x(), std::max(y() + down, 0));
}

// On a low screen the character map scrolls.
int FrmMes::HeightOnScreen(int wanted) const {
  const int frame = frameGeometry().height() - height();
  return std::min(wanted, screen()->availableGeometry().height() - frame);
}

void FrmMes::ShowDetails() {
  const std::string status = engine_.workspace.window.status;
  Run([&] {
    engine_.workspace.window.status = status;
    dialogs_.MessageBox({MessageIcon::kInformation, status, ""});
  });
}

void FrmMes::OpenCompiler() {
  if (!frm_make_) {
    auto form = std::make_unique<FrmMake>(
        CompilerParts{engine_.workspace, engine_.compiler_state, engine_.compiler, engine_.writer,
                      dialogs_},
        [this](const auto& command, QWidget& window) { RunIn(window, command); }, this);
    if (!form->Load()) {
      return;
    }
    frm_make_ = form.release();
    connect(frm_make_, &FrmMake::Activated, this, [this] { dialogs_seen_ = dialogs_.opened(); });
  }
  frm_make_->show();
  frm_make_->activateWindow();
}

void FrmMes::OpenDesk() {
  if (!frm_desk_) {
    frm_desk_ = std::make_unique<FrmDesk>(
        engine_, dialogs_,
        [this](const auto& command, QWidget& window) { RunIn(window, command); });
    frm_desk_->addActions(menus_->SharedEntries());
    connect(frm_desk_.get(), &FrmDesk::TextTyped, this,
            [this](const DisplayCodes& text) { RunIn(*frm_desk_, [&] { ChangeText(text); }); });
  }
  frm_desk_->show();
  frm_desk_->activateWindow();
}

void FrmMes::OpenInfo() {
  if (!frm_info_) {
    frm_info_ = new FrmInfo(this);
  }
  frm_info_->show();
  frm_info_->activateWindow();
}

}  // namespace vendlingua
