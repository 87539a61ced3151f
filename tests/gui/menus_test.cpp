#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <initializer_list>

#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

/// Every command, as the mouse reaches it through the menus.
class MenusTest : public DeskTest {
  Q_OBJECT

 private:
  FrmMes& Window() { return desk_->program.window(); }

  // Clicks an entry of the menu bar, then one in the menu that opened, and so on.
  void Click(std::initializer_list<const char*> path) {
    QMenuBar& menu_bar = *Window().menuBar();
    QMenu* menu = nullptr;
    for (const char* name : path) {
      QAction& entry = desk_->program.Entry(name);
      if (menu == nullptr) {
        QTest::mouseClick(&menu_bar, Qt::LeftButton, Qt::NoModifier,
                          menu_bar.actionGeometry(&entry).center());
      } else {
        QTRY_VERIFY2(menu->isVisible(), name);
        QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                          menu->actionGeometry(&entry).center());
      }
      menu = entry.menu();
    }
  }

  void ClickInCopyMenu(const char* name) {
    QTest::mouseClick(&desk_->program.Get<QLabel>("Label5(1)"), Qt::RightButton);
    auto& menu = *Window().findChild<QMenu*>(QStringLiteral("mCopy"));
    QVERIFY(menu.isVisible());
    QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier,
                      menu.actionGeometry(&desk_->program.Entry(name)).center());
    QVERIFY(!menu.isVisible());
  }

  void Press(QKeyCombination key) {
    Window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&Window()));
    QTest::keyClick(&Window(), key.key(), key.keyboardModifiers());
  }

  // The first language of a ".MES" file is being edited.
  std::filesystem::path EditAMessage() {
    auto path = desk_->Edit(MesFile());
    desk_->Type("EDIT");
    return path;
  }

 private slots:
  void OpensAFile() {
    desk_->user.Choose(desk_->folder.Write("A.MES", MesFile().Bytes()));
    Click({"mnuFile", "mnuOpen"});
    QCOMPARE(Window().windowTitle(), QStringLiteral("A.MES"));
  }

  void SavesTheFile() {
    const auto path = EditAMessage();
    Click({"mnuFile", "mnuSave"});
    QVERIFY(Slurp(path).find("EDIT") != std::string::npos);
  }

  void SavesACopy() {
    EditAMessage();
    desk_->user.Choose(desk_->folder / "COPY.MES");
    Click({"mnuFile", "mnuSaas"});
    QVERIFY(Slurp(desk_->folder / "COPY.MES").find("EDIT") != std::string::npos);
  }

  void EndsTheProgram() {
    Click({"mnuFile", "mnuEsci"});
    QVERIFY(!Window().isVisible());
    QCOMPARE(desk_->program.starts().programs.size(), std::size_t{1});
  }

  void ChoosesTheOrigin() {
    desk_->Open("A.MES", MesFile().Bytes());
    Click({"mnuOrig", "mnuori(1)"});
    QCOMPARE(desk_->program.Get<QLabel>("Label5(0)").text(), QStringLiteral("1"));
  }

  void ChoosesTheDestination() {
    desk_->Open("A.MES", MesFile().Bytes());
    Click({"mnuOrig", "mnuori(0)"});
    Click({"mnuDest", "mnuDes(1)"});
    QCOMPARE(desk_->Text1().text(), QStringLiteral("1000"));
  }

  void StartsANewLanguageThatTheNextSaveNames() {
    const auto path = desk_->Open("A.MES", MesFile().Bytes());
    Click({"mnuOrig", "mnuori(0)"});
    Click({"mnuDest", "mnuDes(0)", "mnuNew(1)"});
    QCOMPARE(desk_->Text1().text(), QStringLiteral("1000"));
    desk_->user.Type(QStringLiteral("english"));
    Click({"mnuFile", "mnuSave"});
    QCOMPARE(desk_->program.Entry("mnuDes(2)").text(), QStringLiteral("ENGLISH"));
    QCOMPARE(Slurp(path), MesFile().Bytes() + "ENGLISH             100011111222");
  }

  void TheHeadingOfTheNewLanguagesIsNoChoice() {
    desk_->Open("A.MES", MesFile().Bytes());
    Click({"mnuOrig", "mnuori(0)"});
    Click({"mnuDest", "mnuDes(0)", "mnuNew(0)"});
    QVERIFY(!desk_->Text1().isEnabled());
    QVERIFY(!desk_->Modified());
  }

  void OpensTheCompiler() {
    EditAMessage();
    desk_->user.No();
    Click({"mnuMake"});
    QVERIFY(desk_->program.compiler() != nullptr);
    QVERIFY(desk_->program.compiler()->isVisible());
  }

  void ChoosesTheDisplayType() {
    desk_->Edit(MesFile());
    Click({"mnuTLCD", "mnuLCD(2)"});
    QVERIFY(desk_->program.Entry("mnuLCD(2)").isChecked());
    QVERIFY(desk_->Modified());
  }

  void ChoosesTheInterfaceLanguage() {
    Click({"mnuLingue", "smnuLingue(2)"});
    QVERIFY(desk_->program.Entry("smnuLingue(2)").isChecked());
    QCOMPARE(desk_->program.Entry("mnuSave").text(), QStringLiteral("&Save"));
  }

  void ShowsTheInformationWithoutBlocking() {
    Click({"mnuInf"});
    QVERIFY(desk_->program.info() != nullptr);
    QVERIFY(desk_->program.info()->isVisible());
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    desk_->Open("A.MES", MesFile().Bytes());
    QCOMPARE(Window().windowTitle(), QStringLiteral("A.MES"));
  }

  void CopiesTheOrigin() {
    EditAMessage();
    ClickInCopyMenu("mnuCopy");
    QCOMPARE(desk_->Text1().text(), QStringLiteral("1000"));
  }

  void ClosesTheCopyMenu() {
    desk_->Edit(MesFile());
    desk_->Text1().setText(QStringLiteral("AB"));
    ClickInCopyMenu("mnuAbor");
    QCOMPARE(desk_->Text1().text(), QStringLiteral("AB"));
    QVERIFY(!desk_->Modified());
  }

  void OffersNoLanguagesWithoutAFile() {
    for (const char* menu : {"mnuOrig", "mnuDest", "mnuTLCD"}) {
      Click({menu});
      QVERIFY2(!desk_->program.Entry(menu).menu()->isVisible(), menu);
    }
    Click({"mnuMake"});
    QVERIFY(desk_->program.compiler() == nullptr);
  }

  void SavesNothingWithoutADestination() {
    desk_->Open("A.MES", MesFile().Bytes());
    for (const char* entry : {"mnuSave", "mnuSaas"}) {
      Click({"mnuFile", entry});
      QCOMPARE(Status(), QString());
      desk_->program.Entry("mnuFile").menu()->close();
    }
  }

  void TheShortcutsRunTheirCommands() {
    desk_->user.Choose(desk_->folder.Write("TEST.MES", MesFile().Bytes()));
    Press(Qt::CTRL | Qt::Key_O);
    QCOMPARE(Window().windowTitle(), QStringLiteral("TEST.MES"));
    EditAMessage();
    Press(Qt::CTRL | Qt::Key_S);
    QVERIFY(Slurp(desk_->folder / "TEST.MES").find("EDIT") != std::string::npos);
    desk_->user.Choose(desk_->folder / "COPY.MES");
    Press(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    QCOMPARE(Window().windowTitle(), QStringLiteral("COPY.MES"));
    Press(Qt::CTRL | Qt::Key_Q);
    QVERIFY(!Window().isVisible());
  }
};

namespace {
const RegisteredTest kMenusTest("menus_test", RunTest<MenusTest>);
}  // namespace

}  // namespace vendlingua::test

#include "menus_test.moc"
