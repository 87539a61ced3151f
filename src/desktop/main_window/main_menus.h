#ifndef VENDLINGUA_DESKTOP_MAIN_WINDOW_MAIN_MENUS_H_
#define VENDLINGUA_DESKTOP_MAIN_WINDOW_MAIN_MENUS_H_

#include <QAction>
#include <QList>
#include <QMenu>
#include <QMenuBar>
#include <QObject>
#include <QPoint>
#include <filesystem>
#include <vector>

#include "core/presentation/menu_state.h"
#include "desktop/main_window/recent_files.h"

namespace vendlingua {

/// The menus of the main window: they show a `MenuState` and say what was chosen.
class MainMenus : public QObject {
  Q_OBJECT

 public:
  MainMenus(QMenuBar& menu_bar, QWidget& window);

  /// Shows captions, visibility, enabled and checked states.
  void Show(const MenuState& menus);

  /// The file that is open is a recent one from now on.
  void NoteFile(const MessageSet& set) { mnuRecent_->Note(set); }

  /// Take an edit back and do it again; they belong into the menu of the edit box.
  QList<QAction*> HistoryEntries() const { return {mnuUndo_, mnuRedo_}; }

  /// What the keys do in every window of the document.
  QList<QAction*> SharedEntries() const { return {mnuSave_, mnuSaas_, mnuUndo_, mnuRedo_}; }

  /// Opens the copy menu.
  void PopUpCopyMenu(const QPoint& global_position) { mCopy_->popup(global_position); }

 signals:
  void OpenChosen();
  void SaveChosen();
  void SaveAsChosen();
  void RecentChosen(const std::filesystem::path& file);
  void DeskChosen();
  void ExitChosen();
  void OriginChosen(int language);
  void DestinationChosen(int language);
  void NewLanguageChosen(int language);
  /// A blank language is wanted, which is named first.
  void NamedLanguageWanted();
  void CompilerChosen();
  void DisplayTypeChosen(int type);
  void InterfaceLanguageChosen(int index);
  void HelpChosen();
  void InfoChosen();
  void CopyChosen();
  void UndoChosen();
  void RedoChosen();

 private:
  using ArraySignal = void (MainMenus::*)(int);

  void BuildFileMenu(QMenuBar& menu_bar);
  void BuildLanguageMenus(QMenuBar& menu_bar);
  void BuildInterfaceMenu(QMenuBar& menu_bar);
  void BuildCopyMenu(QWidget& window);
  void BuildHistoryEntries(QWidget& window);
  std::vector<QAction*> AddArray(QMenu& menu, const char* name, std::size_t first,
                                 std::size_t count, ArraySignal chosen, bool checkable);

  QMenu* mnuFile_ = nullptr;
  QAction* mnuOpen_ = nullptr;
  QAction* mnuSave_ = nullptr;
  QAction* mnuSaas_ = nullptr;
  RecentFiles* mnuRecent_ = nullptr;
  QAction* mnuDesk_ = nullptr;
  QAction* mnuEsci_ = nullptr;
  QMenu* mnuOrig_ = nullptr;
  QMenu* mnuDest_ = nullptr;
  QMenu* mnuDes0_ = nullptr;
  QAction* mnuNewLanguage_ = nullptr;
  QAction* mnuMake_ = nullptr;
  QMenu* mnuTLCD_ = nullptr;
  QMenu* mnuLingue_ = nullptr;
  QAction* mnuHelp_ = nullptr;
  QAction* mnuInf_ = nullptr;
  QMenu* mCopy_ = nullptr;
  QAction* mnuAbor_ = nullptr;
  QAction* mnuCopy_ = nullptr;
  QAction* mnuUndo_ = nullptr;
  QAction* mnuRedo_ = nullptr;
  std::vector<QAction*> mnuori_;
  std::vector<QAction*> mnuDes_;
  std::vector<QAction*> mnuNew_;
  std::vector<QAction*> mnuLCD_;
  std::vector<QAction*> smnuLingue_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_MAIN_WINDOW_MAIN_MENUS_H_
