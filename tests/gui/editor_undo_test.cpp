#include <QClipboard>
#include <QLabel>
#include <QMenu>

#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

/// What was typed is taken back and done again.
class EditorUndoTest : public DeskTest {
  Q_OBJECT

 private slots:
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
};

namespace {
const RegisteredTest kEditorUndoTest("editor_undo_test", RunTest<EditorUndoTest>);
}  // namespace

}  // namespace vendlingua::test

#include "editor_undo_test.moc"
