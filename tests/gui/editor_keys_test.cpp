#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QWheelEvent>

#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

/// Keys, mouse buttons and menus of the editor.
class EditorKeysTest : public DeskTest {
  Q_OBJECT

 private:
  // QTest would let go of the Alt key after each digit.
  void TypeAltCode(const char* digits) {
    for (const char* digit = digits; *digit != 0; ++digit) {
      QKeyEvent press(QEvent::KeyPress, *digit, Qt::AltModifier | Qt::KeypadModifier,
                      QString(QLatin1Char(*digit)));
      QApplication::sendEvent(&desk_->Text1(), &press);
    }
    QTest::keyRelease(&desk_->Text1(), Qt::Key_Alt);
  }

 private slots:
  void EditsAMessageFromItsFirstCharacter() {
    desk_->Edit(MesFile());
    desk_->Text1().end(false);
    desk_->HScroll1().setValue(1);
    QCOMPARE(desk_->Text1().cursorPosition(), 0);
  }

  void ABlankMessageClearsTheEditBox() {
    std::string bytes = MesFile().Bytes();
    bytes.replace(24 + MesFile().BlockLength() + 20 + 4, 4, "    ");
    desk_->Edit(bytes);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("1000"));
    desk_->HScroll1().setValue(1);
    QCOMPARE(desk_->Text1().text(), QString());
  }

  void IgnoresScrollingWhileNoSetIsLoaded() {
    QTest::keyClick(&desk_->program.window(), Qt::Key_PageDown);
    desk_->HScroll1().setValue(1);
    QCOMPARE(Get<QLabel>("Label6").text(), QStringLiteral("0"));
    QCOMPARE(desk_->Text1().text(), QString());
  }

  void StepsNowhereWhileTheSelectorIsDisabled() {
    desk_->EditMsx();
    desk_->Open("A.MES", MesFile().Bytes());
    QVERIFY(!desk_->HScroll1().isEnabled());
    FrmMes& window = desk_->program.window();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QString number = Get<QLabel>("Label6").text();
    QTest::keyClick(&window, Qt::Key_PageDown);
    QTest::keyClick(&window, Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(Get<QLabel>("Label6").text(), number);
    QTest::keyClick(&window, Qt::Key_PageUp);
    QTest::keyClick(&window, Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(Get<QLabel>("Label6").text(), number);
  }

  void ACharacterOfADeadKeyIsPreviewedAndMarksTheSet() {
    desk_->Edit(MesFile());
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral("\u00EA"));
    QApplication::sendEvent(&desk_->Text1(), &commit);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("\u00EA1000").left(4));
    QCOMPARE(Get<QLabel>("Label7").text(), QStringLiteral("\u00EA"));
    QVERIFY(desk_->Modified());
  }

  void AKeyIsPreviewedAndMarksTheSet() {
    desk_->Edit(MesFile());
    QVERIFY(!desk_->Modified());
    QTest::keyClick(&desk_->Text1(), 'Q');
    QCOMPARE(Get<QLabel>("Label7").text(), QStringLiteral("Q"));
    QVERIFY(desk_->Modified());
  }

  void RefusesACharacterThatTheDisplayDoesNotHave() {
    desk_->Edit(MesFile());
    desk_->Type("A");
    QApplication::clipboard()->setText(QStringLiteral("\u0431B"));
    desk_->Text1().paste();
    QApplication::processEvents();
    QCOMPARE(desk_->Text1().text(), QStringLiteral("AB"));
    QCOMPARE(Status(), UiText(53) + QStringLiteral(" \u0431"));
  }

  void TypesACodeWithAlt() {
    desk_->Edit(MesFile());
    desk_->Type("");
    desk_->Text1().clear();
    TypeAltCode("0223");
    TypeAltCode("01");
    TypeAltCode("0256");
    TypeAltCode("65");
    QCOMPARE(desk_->Text1().text(), QStringLiteral("\u00DF\uF001"));
    desk_->HScroll1().setValue(1);
    QCOMPARE(desk_->Stored(0), std::string("\xDF\x01  "));
    QVERIFY(desk_->Modified());
  }

  void CopiesPlainTextToTheClipboard() {
    desk_->Edit(MesFile());
    desk_->Text1().clear();
    TypeAltCode("0127");
    desk_->Text1().selectAll();
    QTest::keyClick(&desk_->Text1(), Qt::Key_C, Qt::ControlModifier);
    QApplication::processEvents();
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("\u007F"));
    QTest::keyClick(&desk_->Text1(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("\uF07F"));
  }

  void CopiesTheOriginFromTheRightMouseButtonsMenu() {
    desk_->Edit(MesFile());
    desk_->HScroll1().setValue(1);
    desk_->Type("X");
    QTest::mouseClick(&Cell(3), Qt::RightButton);
    auto* mCopy = desk_->program.window().findChild<QMenu*>(QStringLiteral("mCopy"));
    QVERIFY(mCopy->isVisible());
    const QWidget& panel = *desk_->Text1().parentWidget();
    QCOMPARE(panel.mapFromGlobal(mCopy->pos()), QPoint(118, 40));  // 1200 + 190 x 3, 600 twips
    desk_->program.Choose("mnuCopy");
    mCopy->close();
    QCOMPARE(desk_->Text1().text(), QStringLiteral("1111"));
    QVERIFY(desk_->Modified());
  }

  void CopiesNothingWithoutAnOpenDestination() {
    desk_->Open("A.MES", MesFile().Bytes());
    desk_->program.Choose("mnuori(1)");
    QVERIFY(!desk_->program.Entry("mnuCopy").isEnabled());
    desk_->program.Choose("mnuDes(1)");
    QVERIFY(desk_->program.Entry("mnuCopy").isEnabled());
  }

  void AbortingTheCopyMenuChangesNothing() {
    desk_->Edit(MesFile());
    desk_->program.Choose("mnuAbor");
    QVERIFY(!desk_->Modified());
  }

  void HintsHowToTypeEveryCharacter() {
    QCOMPARE(Get<QLabel>("Label1(0)").toolTip(), QStringLiteral("ALT + 01"));
    QCOMPARE(Get<QLabel>("Label1(64)").toolTip(), QStringLiteral("ALT + 065"));
    QCOMPARE(Get<QLabel>("Label1(254)").toolTip(), QStringLiteral("ALT + 0255"));
    for (int code = 1; code <= 255; ++code) {
      const QByteArray name = "Label1(" + QByteArray::number(code - 1) + ")";
      QCOMPARE(Get<QLabel>(name.constData()).toolTip(), QStringLiteral("ALT + 0%1").arg(code));
    }
  }

  void StepsThroughTheMessagesWithKeysAndWheel() {
    desk_->Edit(MesFile());
    FrmMes& window = desk_->program.window();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&desk_->Text1(), Qt::Key_PageDown);
    QCOMPARE(desk_->view().Label6, 1);
    QTest::keyClick(&desk_->Text1(), Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(desk_->view().Label6, 2);
    QTest::keyClick(&desk_->Text1(), Qt::Key_PageUp);
    QTest::keyClick(&desk_->Text1(), Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(desk_->view().Label6, 0);
    QWheelEvent notch(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&desk_->HScroll1(), &notch);
    QCOMPARE(desk_->view().Label6, 1);
  }

  void TypesFromTheMapWithTheKeyboard() {
    desk_->Edit(MesFile());
    desk_->Text1().clear();
    auto& map = Get<QWidget>("CharacterMap");
    QTest::keyClick(&map, Qt::Key_Right);
    QTest::keyClick(&map, Qt::Key_Return);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("B"));
    QVERIFY(desk_->Modified());
  }
};

namespace {
const RegisteredTest kEditorKeysTest("editor_keys_test", RunTest<EditorKeysTest>);
}  // namespace

}  // namespace vendlingua::test

#include "editor_keys_test.moc"
