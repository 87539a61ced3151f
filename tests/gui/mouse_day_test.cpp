#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QListView>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTreeWidget>
#include <initializer_list>

#include "desktop/desk/message_table.h"
#include "gui/support/drag.h"
#include "gui/support/registered_test.h"
#include "gui/support/translators_day.h"

namespace vendlingua::test {

/// A day with the mouse alone.
class MouseDayTest : public TranslatorsDay {
  Q_OBJECT

 private:
  QTableView& Table() { return Part<QTableView>("DeskTable"); }

  static void Click(QWidget& widget, QPoint place) {
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, place);
  }
  static void Click(QWidget& widget) { Click(widget, widget.rect().center()); }

  void ClickInMenus(std::initializer_list<const char*> path) {
    QMenuBar& menu_bar = *Window().menuBar();
    QMenu* menu = nullptr;
    for (const char* name : path) {
      QAction& entry = desk_->program.Entry(name);
      if (menu == nullptr) {
        Click(menu_bar, menu_bar.actionGeometry(&entry).center());
      } else {
        QTRY_VERIFY2(menu->isVisible(), name);
        Click(*menu, menu->actionGeometry(&entry).center());
      }
      menu = entry.menu();
    }
  }

  // Chooses a file out of the list, in the folder where the dialog starts.
  void ClickOnFile(const QString& name) {
    desk_->user.By([name](QDialog& dialog) {
      auto* list = dialog.findChild<QListView*>(QStringLiteral("listView"));
      const auto found = [&] {
        const QModelIndex first = list->model()->index(0, 0, list->rootIndex());
        return list->model()->match(first, Qt::DisplayRole, name, 1, Qt::MatchExactly).value(0);
      };
      if (!QTest::qWaitFor([&] { return found().isValid(); })) {
        return false;
      }
      list->scrollTo(found());
      Click(*list->viewport(), list->visualRect(found()).center());
      return ClickOn(dialog, QDialogButtonBox::AcceptRole);
    });
  }

  // A dialog that proposes a name takes it.
  void ClickAccept() {
    desk_->user.By([](QDialog& dialog) { return ClickOn(dialog, QDialogButtonBox::AcceptRole); });
  }

  static bool ClickOn(QDialog& dialog, QDialogButtonBox::ButtonRole role) {
    const auto* buttons = dialog.findChild<QDialogButtonBox*>();
    for (QAbstractButton* button : buttons->buttons()) {
      if (buttons->buttonRole(button) == role && button->isEnabled()) {
        Click(*button);
        return true;
      }
    }
    return false;
  }

  // A release so soon after the list came up would count for the click that opened it.
  static void ClickInBox(QComboBox& box, int entry) {
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0);
    Click(box);
    QAbstractItemView& list = *box.view();
    QTRY_VERIFY(list.isVisible());
    QTest::qWait(1);
    Click(*list.viewport(), list.visualRect(box.model()->index(entry, 0)).center());
    QApplication::setDoubleClickInterval(interval);
  }

  void ClickOnPage(int page) {
    QTabBar& bar = *Part<QTabWidget>("DeskPages").tabBar();
    Click(bar, bar.tabRect(page).center());
  }

  void ClickOnRow(std::size_t row) {
    const QModelIndex index = Table().model()->index(static_cast<int>(row), MessageTable::kNumber);
    Click(*Table().viewport(), Table().visualRect(index).center());
  }

  void TakeTheFirstSuggestion() {
    auto& list = Part<QListWidget>("DeskSuggestions");
    const QPoint place = list.visualItemRect(list.item(0)).center();
    Click(*list.viewport(), place);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
  }

  void DragIntoTheEditBox(const char* character) {
    auto& Text1 = desk_->Text1();
    DragCharacter(desk_->program.Get<QLabel>(character), Text1, {10, Text1.height() / 2});
  }

  // Two blanks, so that the text is not in the middle any more.
  void DragAMistakeIntoTheText() {
    Click(desk_->program.Get<QPushButton>("Command1"));
    DragIntoTheEditBox("Label1(31)");
    DragIntoTheEditBox("Label1(31)");
  }

  void MendIt() {
    ClickOnPage(1);
    auto& findings = Part<QTreeWidget>("DeskFindings");
    QCOMPARE(Current(), kFullTest);
    Click(*findings.viewport(), findings.visualItemRect(findings.currentItem()).center());
    Click(Part<QPushButton>("DeskFix"));
    QVERIFY(!Part<QPushButton>("DeskFix").isEnabled());
    ClickOnPage(0);
  }

  void CompileByMouse() {
    ClickInMenus({"mnuMake"});
    for (int language = 1; language <= kBoardLanguages; ++language) {
      const QString name = QStringLiteral("Check1(%1)").arg(language);
      Click(desk_->program.GetInCompiler<QCheckBox>(qPrintable(name)), {5, 5});
    }
    ClickOnFile(QStringLiteral("FW0417AB.MHX"));
    desk_->user.Yes();
    ClickAccept();
    Click(desk_->program.GetInCompiler<QPushButton>("Command1"));
  }

 private slots:
  void TranslatesAFile() {
    const auto file = PrepareFile();
    desk_->folder.Write("bin/FW0417AB.MHX", "of yesterday");
    ClickOnFile(QLatin1String(kFile));
    ClickInMenus({"mnuFile", "mnuOpen"});
    QCOMPARE(Window().windowTitle(), QLatin1String(kFile));
    ClickInMenus({"mnuOrig", "mnuori(1)"});
    ClickInMenus({"mnuDest", "mnuDes(2)"});
    ClickInMenus({"mnuFile", "mnuDesk"});
    QVERIFY(QTest::qWaitForWindowActive(&desk_->program.desk()));
    ClickOnPage(0);
    ClickInBox(Part<QComboBox>("DeskFilter"), 1);
    ClickOnRow(2);
    QCOMPARE(Current(), kDiagnostics);
    TakeTheFirstSuggestion();
    ClickOnRow(3);
    TakeTheFirstSuggestion();
    QCOMPARE(desk_->Stored(kFullTest), std::string("   Full test    "));
    ClickInBox(Part<QComboBox>("DeskMark"), 1);
    DragAMistakeIntoTheText();
    MendIt();
    Activate();
    ClickAccept();
    Click(Part<QPushButton>("DeskPretranslate"));
    QCOMPARE(desk_->Stored(kWaterTest), std::string("   Water test   "));
    ClickInMenus({"mnuFile", "mnuSave"});
    QVERIFY(!desk_->Modified());
    CompileByMouse();
    CheckTheDaysWork(file, "   Full test    ");
  }
};

namespace {
const RegisteredTest kMouseDayTest("mouse_day_test", RunTest<MouseDayTest>);
}  // namespace

}  // namespace vendlingua::test

#include "mouse_day_test.moc"
