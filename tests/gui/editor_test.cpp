#include <QClipboard>
#include <QContextMenuEvent>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QWheelEvent>

#include "gui/support/desk_test.h"
#include "gui/support/drag.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

class EditorTest : public DeskTest {
  Q_OBJECT

 private:
  template <typename Control>
  Control& Get(const char* name) {
    return desk_->program.Get<Control>(name);
  }

  QLabel& Cell(int index) {
    return Get<QLabel>(qPrintable(QStringLiteral("Label5(%1)").arg(index)));
  }

  // Which pixel columns of cell `index` of a picture have dots, as 0 and 1.
  static QString InkedColumns(const QImage& image, int index) {
    constexpr int kPitch = 12;
    const auto left = [&](int cell) { return qRound(kPitch * cell * image.devicePixelRatio()); };
    QString columns;
    for (int x = left(index); x < left(index + 1); ++x) {
      bool inked = false;
      for (int y = 1; y < image.height() - 1; ++y) {
        inked = inked || qGray(image.pixel(x, y)) < 90;
      }
      columns += inked ? QLatin1Char('1') : QLatin1Char('0');
    }
    return columns;
  }

  // QTest would let go of the Alt key after each digit.
  void TypeAltCode(const char* digits) {
    for (const char* digit = digits; *digit != 0; ++digit) {
      QKeyEvent press(QEvent::KeyPress, *digit, Qt::AltModifier | Qt::KeypadModifier,
                      QString(QLatin1Char(*digit)));
      QApplication::sendEvent(&desk_->Text1(), &press);
    }
    QTest::keyRelease(&desk_->Text1(), Qt::Key_Alt);
  }

  // Shortcuts hold in the active window.
  void Activate() {
    desk_->program.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&desk_->program.window()));
  }

 private slots:
  void ComesAliveWithTheOrigin() {
    desk_->Open("A.MES", MesFile().Bytes());
    QVERIFY(!Cell(0).isVisible());
    QVERIFY(!desk_->HScroll1().isEnabled());
    QVERIFY(!desk_->program.Entry("mnuDest").isEnabled());
    desk_->program.Choose("mnuori(1)");
    QVERIFY(Cell(3).isVisible());
    QVERIFY(!Cell(4).isVisible());
    QVERIFY(desk_->HScroll1().isEnabled());
    QCOMPARE(desk_->HScroll1().maximum(), 2);
    QVERIFY(desk_->program.Entry("mnuDest").isEnabled());
    QCOMPARE(Get<QLabel>("Label6").text(), QStringLiteral("0"));
    QCOMPARE(Cell(0).text(), QStringLiteral("1"));
  }

  void PlacesTheControlsAsDesigned() {
    QCOMPARE(desk_->program.window().size(), QSize(347, 195));
    QCOMPARE(Cell(0).geometry(), QRect(80, 32, 13, 23));
    QCOMPARE(Cell(19).geometry(), QRect(80 + 19 * 12, 32, 13, 23));
    QCOMPARE(desk_->Text1().geometry(), QRect(80, 92, 244, 23));
    QCOMPARE(desk_->HScroll1().geometry(), QRect(8, 40, 57, 17));
    QCOMPARE(Get<QPushButton>("Command1").geometry(), QRect(12, 96, 49, 23));
  }

  void TakesTheWidthOfTheMessages() {
    desk_->EditMsx();
    QCOMPARE(desk_->Text1().width(), 200);  // 186 x 15 + 206 = 2996 twips
    QCOMPARE(Get<QLabel>("Label8(0)").width(), 200);
    QCOMPARE(Get<QLabel>("Label8(1)").width(), 200);
  }

  void CharactersStandUnderTheOriginCells_data() {
    QTest::addColumn<int>("display_type");
    QTest::newRow("normal") << 0;
    QTest::newRow("Cyrillic") << 1;
    QTest::newRow("KTV") << 2;
    QTest::newRow("Hebrew") << 3;
  }
  // Runs once more for every scale of the desktop that people use.
  void CharactersStandUnderTheOriginCells() {
    QFETCH(int, display_type);
    MesFile mes;
    mes.width = 20;
    desk_->Edit(mes);
    desk_->HScroll1().setValue(2);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("12222222222222222222"));
    desk_->program.Choose(qPrintable(QStringLiteral("mnuLCD(%1)").arg(display_type)));
    desk_->program.window().setFocus();
    const QImage edit_box = desk_->Text1().grab().toImage();
    QCOMPARE(edit_box.devicePixelRatio(),
             qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toDouble());
    for (int i = 0; i < 20; ++i) {
      const QImage cell = Cell(i).grab().toImage();
      const QString columns = InkedColumns(cell, 0);
      QVERIFY(columns.contains(QLatin1Char('1')));
      QCOMPARE(InkedColumns(edit_box, i), columns);
    }
  }

  void PaintsPlaceholdersDark() {
    std::string bytes = MesFile().Bytes();
    bytes.at(24 + MesFile().BlockLength() + 20 + 2) = '\xFE';
    desk_->Edit(bytes);
    const QPoint beside_the_character(1, 1);
    QCOMPARE(Cell(1).grab().toImage().pixelColor(beside_the_character), QColor(255, 255, 192));
    QCOMPARE(Cell(2).grab().toImage().pixelColor(beside_the_character), QColor(192, 192, 0));
  }

  void PadsAShortTextWithBlanks() {
    desk_->Edit(MesFile());
    desk_->Type("AB");
    desk_->HScroll1().setValue(1);
    QCOMPARE(desk_->Stored(0), std::string("AB  "));
    desk_->HScroll1().setValue(0);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("AB"));
  }

  void RestoresThePlaceholdersOfAMesSet() {
    MesFile mes;
    std::string bytes = mes.Bytes();
    bytes.at(24 + mes.BlockLength() + 20 + 2) = '\xFE';
    desk_->Edit(bytes);
    QCOMPARE(Cell(2).text(), QStringLiteral("\u00FE"));
    desk_->Type("WXYZ");
    desk_->HScroll1().setValue(1);
    QCOMPARE(desk_->Stored(0), std::string("WX\xFEZ"));
  }

  void ForcesNothingUnderTheEmptyCellsOfAMsxSet() {
    desk_->EditMsx();
    desk_->HScroll1().setValue(4);  // "Prezzo", with prices that the board fills in
    QCOMPARE(Cell(15).text(), QString());
    desk_->Type("0123456789ABCDEF");
    desk_->HScroll1().setValue(5);
    QCOMPARE(desk_->Stored(4), std::string("0123456789ABCDEF"));
  }

  void KeepsOnlyTheWidthOfAPastedText() {
    desk_->Edit(MesFile());
    QApplication::clipboard()->setText(QStringLiteral("ABCDEFGHIJ"));
    desk_->Text1().selectAll();
    desk_->Text1().paste();
    QCOMPARE(desk_->Text1().text(), QStringLiteral("ABCD"));
    QCOMPARE(Status(), UiText(60));
    QVERIFY(desk_->Modified());
  }

  void PutsADroppedCharacterIntoTheCellUnderTheMouse() {
    desk_->Edit(MesFile());
    desk_->Type("WXYZ");
    Get<QPushButton>("Command1").click();
    QCOMPARE(desk_->Text1().width(), 51);  // 4 cells of 12
    DragCharacter(Get<QLabel>("Label1(64)"), desk_->Text1(), {24, 5});
    QCOMPARE(desk_->Text1().text(), QStringLiteral("WXAZ"));
    DragCharacter(Get<QLabel>("Label1(65)"), desk_->Text1(), {23, 5});
    QCOMPARE(desk_->Text1().text(), QStringLiteral("WBAZ"));
  }

  void PutsACharacterDroppedBehindTheLastCellIntoTheLastPosition() {
    desk_->Edit(MesFile());
    desk_->Type("AB");
    Get<QPushButton>("Command1").click();
    DragCharacter(Get<QLabel>("Label1(64)"), desk_->Text1(), {desk_->Text1().width() - 1, 5});
    QCOMPARE(desk_->Text1().text(), QStringLiteral("AB A"));
    QCOMPARE(Get<QLabel>("Label7").text(), QStringLiteral("A"));
    QVERIFY(desk_->Modified());
  }

  void UsesAllTwentyCells() {
    MesFile mes;
    mes.width = 20;
    desk_->Edit(mes);
    QVERIFY(Cell(19).isVisible());
    QCOMPARE(Cell(19).text(), QStringLiteral("0"));
    QVERIFY(desk_->Text1().geometry().right() < desk_->program.window().width());
  }

  void ShowsTwentyCellsOfAWiderMessageAndKeepsItWhole() {
    MesFile mes;
    mes.width = 40;
    desk_->Edit(mes);
    QVERIFY(Cell(19).isVisible());
    const std::string text = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789abcd";
    desk_->Type(text.c_str());
    desk_->HScroll1().setValue(1);
    QCOMPARE(desk_->Stored(0), text);
  }

  void KeepsTheCaretWhileTyping() {
    desk_->EditMsx();
    desk_->Type("abef");
    desk_->Text1().setCursorPosition(2);
    QTest::keyClicks(&desk_->Text1(), QStringLiteral("cd"));
    QCOMPARE(desk_->Text1().text(), QStringLiteral("abcdef"));
    QCOMPARE(desk_->Text1().cursorPosition(), 4);
  }

  void WhatWasTypedIsTakenBackAcrossMessages() {
    desk_->Edit(MesFile());
    desk_->Type("new");
    desk_->HScroll1().setValue(2);
    Activate();
    QTest::keyClick(&desk_->Text1(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(desk_->HScroll1().value(), 0);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("1000"));
    QVERIFY(!desk_->Modified());
    QTest::keyClick(&desk_->Text1(), Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("new"));
    desk_->program.Entry("mnuUndo").trigger();
    QCOMPARE(desk_->Text1().text(), QStringLiteral("1000"));
    QTest::keyClick(&desk_->Text1(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("new"));
    QVERIFY(desk_->Modified());
  }

  void TheBoxTakesNothingBackByItself() {
    desk_->Edit(MesFile());
    desk_->Type("new");
    desk_->program.Choose("mnuSave");
    desk_->program.Choose("mnuDes(1)");
    desk_->Type("x");
    desk_->program.Entry("mnuUndo").trigger();
    QVERIFY(!desk_->program.Entry("mnuUndo").isEnabled());
    Activate();
    QTest::keyClick(&desk_->Text1(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("new"));
  }

  void ItsMenuBeginsWithTakingBack() {
    desk_->Edit(MesFile());
    desk_->Type("new");
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(&desk_->Text1(), &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu != nullptr);
    QCOMPARE(menu->actions().at(0), &desk_->program.Entry("mnuUndo"));
    QCOMPARE(menu->actions().at(1), &desk_->program.Entry("mnuRedo"));
    QVERIFY(menu->actions().at(2)->isSeparator());
    menu->close();
  }

  void TheCharacterThatIsCutOffCanBeBroughtBack() {
    desk_->Edit(MesFile());
    desk_->Type("abcd");
    desk_->Text1().setCursorPosition(0);
    Activate();
    QTest::keyClicks(&desk_->Text1(), QStringLiteral("x"));
    QCOMPARE(desk_->Text1().text(), QStringLiteral("xabc"));
    QCOMPARE(Status(), UiText(60));
    QTest::keyClick(&desk_->Text1(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("abcd"));
  }

  void APastedTextThatCannotBeShownReplacesNothing() {
    desk_->Edit(MesFile());
    desk_->Type("abcd");
    desk_->Text1().setSelection(1, 2);
    QGuiApplication::clipboard()->setText(QStringLiteral("\u0431\u0436\u0431"));
    QTest::keyClick(&desk_->Text1(), Qt::Key_V, Qt::ControlModifier);
    QApplication::processEvents();
    QCOMPARE(desk_->Text1().text(), QStringLiteral("abcd"));
    QCOMPARE(desk_->Text1().selectedText(), QStringLiteral("bc"));
    QCOMPARE(Status(), UiText(53) + QStringLiteral(" \u0431 \u0436"));
  }

  void NothingTypedIsLostForAnotherOrigin() {
    const std::filesystem::path path = desk_->Edit(MesFile());
    desk_->Type("new");
    desk_->program.Choose("mnuori(0)");
    QCOMPARE(desk_->Text1().text(), QStringLiteral("new"));
    desk_->program.Choose("mnuSave");
    QCOMPARE(Slurp(path).substr(24 + 36 + 20, 4), "new ");
  }

  void TheKeysForMessagesNeedASelector() {
    desk_->Edit(MesFile());
    desk_->HScroll1().setValue(2);
    desk_->Open("OTHER.MES", MesFile{.last_msg = 0}.Bytes());
    QCOMPARE(desk_->HScroll1().maximum(), 0);
    Activate();
    QTest::keyClick(&desk_->program.window(), Qt::Key_PageDown);
    QTest::keyClick(&desk_->program.window(), Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(desk_->view().Label6, 0);
  }

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

  void TogglesTheHeightOfTheWindow() {
    desk_->Edit(MesFile());
    FrmMes& window = desk_->program.window();
    window.move(100, 200);
    Get<QPushButton>("Command1").click();
    QCOMPARE(window.height(), 569);
    QCOMPARE(window.y(), 200 - 67);
    QVERIFY(Get<QLabel>("Label1(0)").isVisible());
    Get<QPushButton>("Command1").click();
    QCOMPARE(window.height(), 195);
    QCOMPARE(window.y(), 200);
    QVERIFY(!Get<QLabel>("Label1(0)").isVisible());
  }

  void AddsAMessageBehindTheLastOne() {
    desk_->Edit(MesFile());
    QVERIFY(!Get<QPushButton>("Command2").isVisible());
    desk_->HScroll1().setValue(2);
    QVERIFY(Get<QPushButton>("Command2").isVisible());
    desk_->user.Yes();
    Get<QPushButton>("Command2").click();
    QCOMPARE(desk_->HScroll1().maximum(), 3);
    QVERIFY(!Get<QPushButton>("Command2").isVisible());
    QVERIFY(desk_->Modified());
    QCOMPARE(desk_->user.LastBox().icon, QMessageBox::Question);
  }

  void AddsNoMessageAfterNo() {
    desk_->Edit(MesFile());
    desk_->HScroll1().setValue(2);
    desk_->user.No();
    Get<QPushButton>("Command2").click();
    QCOMPARE(desk_->HScroll1().maximum(), 2);
    QVERIFY(!desk_->Modified());
  }

  void OffersNoNewMessageWhenTheLanguageIsFull() {
    desk_->Edit(MesFile{.last_msg = 3, .stride = 3});
    desk_->HScroll1().setValue(3);
    QVERIFY(!Get<QPushButton>("Command2").isVisible());
  }

  void OffersNoNewMessageWithoutADestination() {
    desk_->Open("A.MES", MesFile().Bytes());
    desk_->program.Choose("mnuori(1)");
    desk_->HScroll1().setValue(2);
    QVERIFY(!Get<QPushButton>("Command2").isVisible());
  }

  void OffersNoNewMessageInAMsxSet() {
    desk_->EditMsx();
    desk_->HScroll1().setValue(454);
    QVERIFY(!Get<QPushButton>("Command2").isVisible());
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

  void MarksTheMessageThatNamesTheLanguage() {
    desk_->Edit(MesFile());
    QVERIFY(!Get<QLabel>("Label9(0)").isVisible());
    desk_->HScroll1().setValue(1);
    QVERIFY(Get<QLabel>("Label9(0)").isVisible());
    QVERIFY(Get<QLabel>("Label9(1)").isVisible());
    desk_->HScroll1().setValue(2);
    QVERIFY(!Get<QLabel>("Label9(0)").isVisible());
  }

  void MarksTheMessageThatNamesTheLanguageOfAMsxSet() {
    desk_->EditMsx();
    desk_->HScroll1().setValue(169);
    QVERIFY(Get<QLabel>("Label9(0)").isVisible());
    desk_->HScroll1().setValue(171);
    QVERIFY(!Get<QLabel>("Label9(0)").isVisible());
  }

  void MarksNoMessageWithoutADestination() {
    desk_->Open("A.MES", MesFile().Bytes());
    desk_->program.Choose("mnuori(1)");
    desk_->HScroll1().setValue(1);
    QVERIFY(!Get<QLabel>("Label9(0)").isVisible());
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
const RegisteredTest kEditorTest("editor_test", RunTest<EditorTest>);
}  // namespace

}  // namespace vendlingua::test

#include "editor_test.moc"
