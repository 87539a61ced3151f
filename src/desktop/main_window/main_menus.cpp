#include "desktop/main_window/main_menus.h"

#include <QKeySequence>
#include <QString>

#include "desktop/element_name.h"
#include "desktop/icon.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

// A caption of the interface language marks its mnemonic with "&"; in a name out of a file "&" is a
// character like any other.
enum class Caption { kInterfaceText, kName };

void ShowEntry(QAction& action, const MenuEntry& entry, Caption caption = Caption::kInterfaceText) {
  QString text = FromUtf8(entry.caption);
  if (caption == Caption::kName) {
    text.replace(QLatin1Char('&'), QStringLiteral("&&"));
  }
  action.setText(text);
  action.setVisible(entry.visible);
  action.setEnabled(entry.enabled);
  if (action.isCheckable()) {
    action.setChecked(entry.checked);
  }
}

template <typename Entries>
void ShowEntries(const std::vector<QAction*>& actions, const Entries& entries, Caption caption) {
  for (std::size_t i = 0; i < actions.size(); ++i) {
    ShowEntry(*actions[i], entries.at(i), caption);
  }
}

QMenu* AddMenu(QMenuBar& menu_bar, const char* name) {
  QMenu* menu = menu_bar.addMenu(QString());
  menu->setObjectName(QLatin1String(name));
  menu->menuAction()->setObjectName(QLatin1String(name));
  return menu;
}

template <typename Container>
QAction* AddAction(Container& container, const char* name) {
  auto* action = new QAction(&container);
  container.addAction(action);
  action->setObjectName(QLatin1String(name));
  return action;
}

}  // namespace

MainMenus::MainMenus(QMenuBar& menu_bar, QWidget& window) : QObject(&window) {
  BuildFileMenu(menu_bar);
  BuildLanguageMenus(menu_bar);
  mnuMake_ = AddAction(menu_bar, "mnuMake");
  connect(mnuMake_, &QAction::triggered, this, &MainMenus::CompilerChosen);
  mnuTLCD_ = AddMenu(menu_bar, "mnuTLCD");
  mnuLCD_ = AddArray(*mnuTLCD_, "mnuLCD", 0, kDisplayTypes, &MainMenus::DisplayTypeChosen, true);
  BuildInterfaceMenu(menu_bar);
  mnuInf_ = AddAction(menu_bar, "mnuInf");
  connect(mnuInf_, &QAction::triggered, this, &MainMenus::InfoChosen);
  BuildCopyMenu(window);
  BuildHistoryEntries(window);
}

void MainMenus::BuildFileMenu(QMenuBar& menu_bar) {
  mnuFile_ = AddMenu(menu_bar, "mnuFile");
  mnuOpen_ = AddAction(*mnuFile_, "mnuOpen");
  mnuOpen_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_O));
  connect(mnuOpen_, &QAction::triggered, this, &MainMenus::OpenChosen);
  mnuSave_ = AddAction(*mnuFile_, "mnuSave");
  mnuSave_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
  connect(mnuSave_, &QAction::triggered, this, &MainMenus::SaveChosen);
  mnuSaas_ = AddAction(*mnuFile_, "mnuSaas");
  mnuSaas_->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
  connect(mnuSaas_, &QAction::triggered, this, &MainMenus::SaveAsChosen);
  mnuFile_->addSeparator();
  mnuRecent_ = new RecentFiles(mnuFile_);
  mnuFile_->addMenu(mnuRecent_);
  connect(mnuRecent_, &RecentFiles::Chosen, this, &MainMenus::RecentChosen);
  mnuDesk_ = AddAction(*mnuFile_, "mnuDesk");
  mnuDesk_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_L));
  connect(mnuDesk_, &QAction::triggered, this, &MainMenus::DeskChosen);
  mnuEsci_ = AddAction(*mnuFile_, "mnuEsci");
  mnuEsci_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
  mnuEsci_->setMenuRole(QAction::QuitRole);
  connect(mnuEsci_, &QAction::triggered, this, &MainMenus::ExitChosen);
}

void MainMenus::BuildLanguageMenus(QMenuBar& menu_bar) {
  mnuOrig_ = AddMenu(menu_bar, "mnuOrig");
  mnuori_ = AddArray(*mnuOrig_, "mnuori", 0, kLanguageEntries, &MainMenus::OriginChosen, true);

  mnuDest_ = AddMenu(menu_bar, "mnuDest");
  mnuDes0_ = mnuDest_->addMenu(Icon(QLatin1String("plus")), QString());
  mnuDes0_->setObjectName(ElementName("mnuDes", 0));
  mnuDes0_->menuAction()->setObjectName(ElementName("mnuDes", 0));
  mnuNew_ =
      AddArray(*mnuDes0_, "mnuNew", 0, kLanguageEntries, &MainMenus::NewLanguageChosen, false);
  mnuDes_ =
      AddArray(*mnuDest_, "mnuDes", 1, kLanguageEntries - 1, &MainMenus::DestinationChosen, true);
  mnuDes_.insert(mnuDes_.begin(), mnuDes0_->menuAction());
  mnuDest_->addSeparator();
  mnuNewLanguage_ = AddAction(*mnuDest_, "mnuNewLanguage");
  connect(mnuNewLanguage_, &QAction::triggered, this, &MainMenus::NamedLanguageWanted);
}

// The guide is in the interface language, too. Its key holds in every window of the program.
void MainMenus::BuildInterfaceMenu(QMenuBar& menu_bar) {
  mnuLingue_ = AddMenu(menu_bar, "mnuLingue");
  smnuLingue_ = AddArray(*mnuLingue_, "smnuLingue", 0, InterfaceLanguages::kMost,
                         &MainMenus::InterfaceLanguageChosen, true);
  mnuLingue_->addSeparator();
  mnuHelp_ = AddAction(*mnuLingue_, "mnuHelp");
  mnuHelp_->setShortcut(QKeySequence(Qt::Key_F1));
  mnuHelp_->setShortcutContext(Qt::ApplicationShortcut);
  connect(mnuHelp_, &QAction::triggered, this, &MainMenus::HelpChosen);
}

void MainMenus::BuildCopyMenu(QWidget& window) {
  mCopy_ = new QMenu(&window);
  mCopy_->setObjectName(QStringLiteral("mCopy"));
  mCopy_->menuAction()->setObjectName(QStringLiteral("mCopy"));
  mnuAbor_ = AddAction(*mCopy_, "mnuAbor");
  mnuCopy_ = AddAction(*mCopy_, "mnuCopy");
  connect(mnuCopy_, &QAction::triggered, this, &MainMenus::CopyChosen);
}

// They stand in no menu of the bar; their keys hold in the whole window.
void MainMenus::BuildHistoryEntries(QWidget& window) {
  mnuUndo_ = AddAction(window, "mnuUndo");
  mnuUndo_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
  connect(mnuUndo_, &QAction::triggered, this, &MainMenus::UndoChosen);
  mnuRedo_ = AddAction(window, "mnuRedo");
  mnuRedo_->setShortcuts({Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y});
  connect(mnuRedo_, &QAction::triggered, this, &MainMenus::RedoChosen);
}

std::vector<QAction*> MainMenus::AddArray(QMenu& menu, const char* name, std::size_t first,
                                          std::size_t count, ArraySignal chosen, bool checkable) {
  std::vector<QAction*> actions;
  for (std::size_t i = first; i < first + count; ++i) {
    QAction* action = menu.addAction(QString());
    action->setObjectName(ElementName(name, i));
    action->setCheckable(checkable);
    connect(action, &QAction::triggered, this,
            [this, chosen, i] { emit(this->*chosen)(static_cast<int>(i)); });
    actions.push_back(action);
  }
  return actions;
}

void MainMenus::Show(const MenuState& menus) {
  ShowEntry(*mnuFile_->menuAction(), menus.mnuFile);
  ShowEntry(*mnuOpen_, menus.mnuOpen);
  ShowEntry(*mnuSave_, menus.mnuSave);
  ShowEntry(*mnuSaas_, menus.mnuSaas);
  ShowEntry(*mnuRecent_->menuAction(), menus.mnuRecent);
  ShowEntry(*mnuDesk_, menus.mnuDesk);
  ShowEntry(*mnuEsci_, menus.mnuEsci);
  ShowEntry(*mnuOrig_->menuAction(), menus.mnuOrig);
  ShowEntry(*mnuDest_->menuAction(), menus.mnuDest);
  ShowEntry(*mnuNewLanguage_, menus.mnuNewLanguage);
  ShowEntry(*mnuMake_, menus.mnuMake);
  ShowEntry(*mnuTLCD_->menuAction(), menus.mnuTLCD);
  ShowEntry(*mnuLingue_->menuAction(), menus.mnuLingue);
  ShowEntry(*mnuHelp_, menus.mnuHelp);
  ShowEntry(*mnuInf_, menus.mnuInf);
  ShowEntry(*mCopy_->menuAction(), menus.mCopy);
  mCopy_->setTitle(FromUtf8(menus.mCopy.caption));
  ShowEntry(*mnuAbor_, menus.mnuAbor);
  ShowEntry(*mnuCopy_, menus.mnuCopy);
  ShowEntry(*mnuUndo_, menus.mnuUndo);
  ShowEntry(*mnuRedo_, menus.mnuRedo);
  ShowEntries(mnuori_, menus.mnuori, Caption::kName);
  ShowEntries(mnuDes_, menus.mnuDes, Caption::kName);
  ShowEntries(mnuNew_, menus.mnuNew, Caption::kName);
  ShowEntries(mnuLCD_, menus.mnuLCD, Caption::kInterfaceText);
  ShowEntries(smnuLingue_, menus.smnuLingue, Caption::kName);
}

}  // namespace vendlingua
