#include <QLabel>
#include <QPushButton>

#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

/// The button that adds a message, and the height of the window.
class NewMessageTest : public DeskTest {
  Q_OBJECT

 private slots:
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
};

namespace {
const RegisteredTest kNewMessageTest("new_message_test", RunTest<NewMessageTest>);
}  // namespace

}  // namespace vendlingua::test

#include "new_message_test.moc"
