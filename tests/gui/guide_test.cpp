#include "desktop/qt_path.h"
#include "gui/support/browser.h"
#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

/// The user's guide opens in the browser.
class GuideTest : public DeskTest {
  Q_OBJECT

 private:
  Browser browser_;

  // As it is installed.
  void InstallGuide() {
    std::filesystem::copy(VENDLINGUA_GUIDE_FOLDER, desk_->folder / "bin" / "guide",
                          std::filesystem::copy_options::recursive);
  }

  // The page that was opened, below the folder of the guide.
  QString Opened() {
    const std::filesystem::path page = ToPath(browser_.opened.toLocalFile());
    return page.empty() ? QString() : ToQString(relative(page, desk_->folder / "bin" / "guide"));
  }

  void PressTheKey(QWidget& window) {
    browser_.opened.clear();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_F1);
    QVERIFY2(browser_.opened.isValid(), qPrintable(window.objectName()));
  }

 private slots:
  void ItsEntryOpensIt() {
    InstallGuide();
    desk_->program.Choose("smnuLingue(2)");
    desk_->program.Choose("mnuHelp");
    QCOMPARE(Opened(), QStringLiteral("en/index.html"));
  }

  void ItsEntryStandsBehindTheInterfaceLanguages() {
    const QList<QAction*> entries = desk_->program.Entry("mnuLingue").menu()->actions();
    QCOMPARE(entries.back()->objectName(), QStringLiteral("mnuHelp"));
    QVERIFY(entries.at(entries.size() - 2)->isSeparator());
    QCOMPARE(entries.front()->objectName(), QStringLiteral("smnuLingue(0)"));
  }

  void ItIsItalianInAnItalianProgram() {
    InstallGuide();
    desk_->program.Choose("smnuLingue(5)");
    desk_->program.Choose("mnuHelp");
    QCOMPARE(Opened(), QStringLiteral("it/index.html"));
  }

  void ItIsEnglishInEveryOtherLanguage() {
    InstallGuide();
    for (const char* language : {"smnuLingue(0)", "smnuLingue(1)", "smnuLingue(3)"}) {
      browser_.opened.clear();
      desk_->program.Choose(language);
      desk_->program.Choose("mnuHelp");
      QCOMPARE(Opened(), QStringLiteral("en/index.html"));
    }
  }

  void AKeyOpensItInEveryWindow() {
    InstallGuide();
    desk_->Edit(MesFile());
    PressTheKey(desk_->program.window());
    desk_->program.Choose("mnuDesk");
    PressTheKey(desk_->program.desk());
    desk_->program.Choose("mnuInf");
    PressTheKey(*desk_->program.info());
    desk_->program.Choose("mnuMake");
    PressTheKey(*desk_->program.compiler());
  }

  void AGuideThatIsNotThereIsTold() {
    browser_.opened.clear();
    desk_->program.Choose("mnuHelp");
    QVERIFY(browser_.opened.isEmpty());
    QVERIFY(desk_->user.LastBox().text.contains(QStringLiteral("index.html")));
  }
};

namespace {
const RegisteredTest kGuideTest("guide_test", RunTest<GuideTest>);
}  // namespace

}  // namespace vendlingua::test

#include "guide_test.moc"
