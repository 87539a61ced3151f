#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"
#include "support/full_disk.h"

namespace vendlingua::test {

class CompilerTest : public DeskTest {
  Q_OBJECT

 private:
  std::filesystem::path file_;

  static MesFile ThreeLanguages() {
    MesFile mes;
    mes.names = {"Default", "ITALIANO", "ENGLISH", "DEUTSCH"};
    return mes;
  }

  // Opens a set of three languages for a board of two, and the compiler window.
  void OpenCompiler(const MesFile& mes = ThreeLanguages()) {
    file_ = desk_->Edit(mes);
    desk_->program.Choose("mnuMake");
    QVERIFY(desk_->program.compiler() != nullptr);
  }

  QCheckBox& Check1(int i) {
    return desk_->program.GetInCompiler<QCheckBox>(qPrintable(QStringLiteral("Check1(%1)").arg(i)));
  }
  QLabel& Label1(int i) {
    return desk_->program.GetInCompiler<QLabel>(qPrintable(QStringLiteral("Label1(%1)").arg(i)));
  }
  QPushButton& Command1() { return desk_->program.GetInCompiler<QPushButton>("Command1"); }
  QPushButton& Command2() { return desk_->program.GetInCompiler<QPushButton>("Command2"); }
  QString CompilerStatus() { return desk_->program.GetInCompiler<QLabel>("Status").text(); }
 private slots:
  void ShowsTheLanguagesOfTheFile() {
    OpenCompiler();
    QCOMPARE(desk_->program.compiler()->windowTitle(), QStringLiteral("MAkE"));
    QVERIFY(Check1(3).isVisible());
    QCOMPARE(Label1(3).text(), QStringLiteral("DEUTSCH"));
    QVERIFY(!Check1(4).isVisible());
    QVERIFY(!Label1(100).isVisible());
    auto& SSTab1 = desk_->program.GetInCompiler<QTabWidget>("SSTab1");
    QCOMPARE(SSTab1.tabText(0), QStringLiteral("1-50"));
    QCOMPARE(SSTab1.tabText(1), QStringLiteral("51 - 100"));
    QVERIFY(!Command1().isEnabled());
    QCOMPARE(Command1().text(), UiText(25));
    QCOMPARE(Command2().text(), UiText(26));
  }

  void ExactlyTheLanguagesOfTheBoardCanBeTicked() {
    OpenCompiler();
    Check1(1).click();
    QVERIFY(!Command1().isEnabled());
    Check1(2).click();
    QVERIFY(Command1().isEnabled());
    QVERIFY(!Check1(3).isEnabled());
    Check1(1).click();
    QVERIFY(!Command1().isEnabled());
    QVERIFY(Check1(3).isEnabled());
    QCOMPARE(CompilerStatus(),
             UiText(58) + QStringLiteral(" 2, ") + UiText(59) + QStringLiteral(" 1"));
  }

  void AHundredLanguagesFillTwoPages() {
    MesFile mes;
    mes.names.clear();
    for (int i = 0; i <= 100; ++i) {
      mes.names.push_back("LANGUAGE NUMBER " + std::to_string(i));
    }
    OpenCompiler(mes);
    auto& SSTab1 = desk_->program.GetInCompiler<QTabWidget>("SSTab1");
    QVERIFY(Label1(50).isVisible());
    QVERIFY(!Label1(51).isVisible());
    SSTab1.setCurrentIndex(1);
    QVERIFY(Label1(51).isVisible());
    QVERIFY(Label1(100).isVisible());
    QVERIFY(Label1(100).sizeHint().width() <= Label1(100).width());
  }

  void RenamesALanguageInMenusAndFile() {
    OpenCompiler();
    desk_->user.Type(QStringLiteral("english (great britain)"));
    desk_->user.Yes();
    QTest::mouseClick(&Label1(2), Qt::RightButton);
    const QString name = QStringLiteral("ENGLISH (GREAT BRITA");
    QCOMPARE(desk_->user.inputs().front().title, UiText(48));
    QCOMPARE(desk_->user.inputs().front().prompt, UiText(49));
    QCOMPARE(desk_->user.inputs().front().default_answer, QStringLiteral("ENGLISH"));
    QCOMPARE(desk_->user.FirstBox().text, UiText(50));
    QCOMPARE(Label1(2).text(), name);
    for (const char* entry : {"mnuori(2)", "mnuDes(2)", "mnuNew(2)"}) {
      QCOMPARE(desk_->program.Entry(entry).text(), name);
    }
    std::string expected = ThreeLanguages().Bytes();
    expected.replace(24 + 2 * ThreeLanguages().BlockLength(), 20, "ENGLISH (GREAT BRITA");
    QCOMPARE(Slurp(file_), expected);
  }

  void RenamesTheFocusedLanguageWithF2() {
    OpenCompiler();
    desk_->program.compiler()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(desk_->program.compiler()));
    Check1(3).setFocus();
    desk_->user.Cancel();
    QTest::keyClick(&Check1(3), Qt::Key_F2);
    QCOMPARE(desk_->user.inputs().front().default_answer, QStringLiteral("DEUTSCH"));
    QCOMPARE(Slurp(file_), ThreeLanguages().Bytes());
  }

  void ABlankNameRenamesNothing() {
    OpenCompiler();
    desk_->user.Type(QStringLiteral("  "));
    QTest::mouseClick(&Label1(2), Qt::RightButton);
    QCOMPARE(Label1(2).text(), QStringLiteral("ENGLISH"));
    QCOMPARE(Slurp(file_), ThreeLanguages().Bytes());
  }

  void ANameOfAnotherLanguageIsAskedForAgain() {
    OpenCompiler();
    desk_->user.Type(QStringLiteral("deutsch"));
    desk_->user.Type(QStringLiteral("polski"));
    desk_->user.No();
    QTest::mouseClick(&Label1(2), Qt::RightButton);
    QCOMPARE(desk_->user.FirstBox().icon, QMessageBox::Warning);
    QCOMPARE(desk_->user.FirstBox().title, UiText(51));
    QCOMPARE(Label1(2).text(), QStringLiteral("ENGLISH"));
  }

  void SaysThatTheFileCannotBeWritten() {
    OpenCompiler();
    std::filesystem::remove(file_);
    desk_->user.Type(QStringLiteral("polski"));
    desk_->user.Yes();
    QTest::mouseClick(&Label1(2), Qt::RightButton);
    const DialogAnswerer::Box box = desk_->user.LastBox();
    QCOMPARE(box.title, QStringLiteral("Error Property"));
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.text, QStringLiteral("File Error: This file is only reading!\n"
                                      "Please change the property File"));
    QCOMPARE(Label1(2).text(), QStringLiteral("POLSKI"));
    QCOMPARE(desk_->program.Entry("mnuDes(2)").text(), QStringLiteral("POLSKI"));
  }

  void CompilesTheTickedLanguages() {
    OpenCompiler();
    Check1(1).click();
    Check1(3).click();
    desk_->user.Choose(desk_->folder / "FW0000AA.hex");
    Command1().click();
    QCOMPARE(CompilerStatus(), UiText(57) + QStringLiteral(" FW0000AA.hex, FW0000AA.HSX"));
    const std::string flash = Slurp(desk_->folder / "FW0000AA.hex");
    QVERIFY(flash.starts_with("S1136000" + HexOf("1000")));
    QVERIFY(Command1().isEnabled());
    QVERIFY(Command2().isEnabled());
    QCOMPARE(desk_->user.files().back().suffix, QStringLiteral("hex"));
    QVERIFY(desk_->user.files().back().asks_before_overwriting);
  }

  void ShowsTheHourglassOfACompilationThatIsNotOverUntilTheWindowIsOpenedAnew() {
    OpenCompiler();
    Check1(1).click();
    Check1(3).click();
    desk_->user.Choose(desk_->folder / "FLASH.BIN");
    Command1().click();
    QCOMPARE(desk_->user.LastBox().text,
             QStringLiteral("Impossibile creare il file MSX o il file HSX"));
    QCOMPARE(desk_->user.LastBox().title, QStringLiteral("Errore"));
    QVERIFY(!Command1().isEnabled());
    QVERIFY(!Command2().isEnabled());
    QCOMPARE(desk_->program.compiler()->cursor().shape(), Qt::WaitCursor);
    QCOMPARE(desk_->program.window().cursor().shape(), Qt::WaitCursor);
    desk_->program.compiler()->close();
    QTRY_VERIFY(desk_->program.compiler() == nullptr);
    desk_->program.Choose("mnuMake");
    QVERIFY(Command2().isEnabled());
    QCOMPARE(desk_->program.compiler()->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(desk_->program.window().cursor().shape(), Qt::ArrowCursor);
  }

  void ACancelledCompilationEnablesTheButtonsAgain() {
    OpenCompiler();
    Check1(1).click();
    Check1(3).click();
    desk_->user.Cancel();
    Command1().click();
    QVERIFY(Command1().isEnabled());
    QCOMPARE(desk_->folder.Names(), std::string("TEST.MES bin"));
  }

  void SaysThatTheDiskIsFull() {
    OpenCompiler();
    Check1(1).click();
    Check1(3).click();
    desk_->user.Choose(desk_->folder / "FW0000AA.hex");
    {
      const FullDisk disk(10);
      Command1().click();
    }
    QCOMPARE(desk_->user.boxes().size(), std::size_t{1});
    QCOMPARE(desk_->user.FirstBox().title, QStringLiteral("ERROR"));
    QVERIFY(desk_->user.FirstBox().text.contains(QStringLiteral("FW0000AA.hex")));
    QVERIFY(Command1().isEnabled());
    QVERIFY(Command2().isEnabled());
    QVERIFY(desk_->program.compiler()->cursor().shape() != Qt::WaitCursor);
    QVERIFY(!std::filesystem::exists(desk_->folder / "FW0000AA.HSX"));
  }

  void AMsxFileIsCompiledAsAWhole() {
    desk_->EditMsx();
    desk_->program.Choose("mnuMake");
    QVERIFY(!desk_->program.GetInCompiler<QTabWidget>("SSTab1").isVisible());
    QVERIFY(Command1().isEnabled());
    desk_->user.Choose(desk_->folder / "FW0417AA.MHX");
    Command1().click();
    QVERIFY(std::filesystem::exists(desk_->folder / "FW0417AA.MHX"));
    QVERIFY(std::filesystem::exists(desk_->folder / "FW0417AA.mtx"));
  }

  void AsksAboutUnsavedChangesWhenItOpens() {
    file_ = desk_->Edit(ThreeLanguages());
    desk_->Type("EDIT");
    desk_->user.Yes();
    desk_->program.Choose("mnuMake");
    QCOMPARE(desk_->user.FirstBox().text, UiText(43));
    QVERIFY(Slurp(file_).find("EDIT") != std::string::npos);
    QVERIFY(desk_->program.compiler()->isVisible());
  }

  void ClosesWhenTheMainWindowBecomesActive() {
    OpenCompiler();
    QVERIFY(QTest::qWaitForWindowActive(desk_->program.compiler()));
    desk_->program.window().activateWindow();
    QTRY_VERIFY(desk_->program.compiler() == nullptr);
  }

  void StaysWhenAMessageBoxOfItsOwnCloses() {
    OpenCompiler();
    QVERIFY(QTest::qWaitForWindowActive(desk_->program.compiler()));
    desk_->user.Type(QStringLiteral("deutsch"));
    desk_->user.Cancel();
    QTest::mouseClick(&Label1(2), Qt::RightButton);
    QApplication::processEvents();
    QVERIFY(desk_->program.compiler() != nullptr);
  }

  void TheTabKeyGoesFromTheLanguagesToTheButtons() {
    OpenCompiler();
    desk_->program.compiler()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(desk_->program.compiler()));
    QStringList stops;
    for (int i = 0; i < 4; ++i) {
      const QWidget* focused = QApplication::focusWidget();
      stops += focused->objectName();
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(stops.join(QLatin1Char(' ')),
             QStringLiteral("Check1(1) Check1(2) Check1(3) Command2"));  // Command1 is disabled
  }

  void ClosesWithItsButton() {
    OpenCompiler();
    Command2().click();
    QTRY_VERIFY(desk_->program.compiler() == nullptr);
  }
};

namespace {
const RegisteredTest kCompilerTest("compiler_test", RunTest<CompilerTest>);
}  // namespace

}  // namespace vendlingua::test

#include "compiler_test.moc"
