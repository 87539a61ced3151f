#include <QComboBox>
#include <QLineEdit>
#include <QTableView>

#include "core/marks/marks_file.h"
#include "desktop/desk/message_table.h"
#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

/// Messages are marked at the desk.
class DeskMarksTest : public DeskTest {
  Q_OBJECT

 private:
  template <typename Control>
  Control& Part(const char* name) {
    return desk_->program.GetInDesk<Control>(name);
  }
  QComboBox& MarkBox() { return Part<QComboBox>("DeskMark"); }
  QLineEdit& Remark() { return Part<QLineEdit>("DeskRemark"); }

  void OpenDesk() {
    desk_->Edit(MesFile());
    desk_->program.Choose("mnuDesk");
    desk_->program.desk().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&desk_->program.desk()));
  }

  void Choose(int entry) {
    MarkBox().setCurrentIndex(entry);
    emit MarkBox().activated(entry);
  }

  QString MarkOf(int row) {
    return Part<QTableView>("DeskTable").model()->index(row, MessageTable::kMark).data().toString();
  }

  KeptMarks Kept() { return ReadMarks(desk_->folder / "TEST.MES").value(); }

 private slots:
  void AMarkIsKeptBesideTheFile() {
    OpenDesk();
    QVERIFY(Kept().empty());
    Choose(2);
    QCOMPARE(MarkOf(0), UiText(UiTextId::kNeedsWork));
    QCOMPARE(Kept().size(), 1U);
    QVERIFY(Kept().front().mark.mark == Mark::kNeedsWork);
    Choose(0);
    QVERIFY(!std::filesystem::exists(desk_->folder / "TEST.MES.marks"));
  }

  void AKeyGoesThroughTheMarks() {
    OpenDesk();
    QTest::keyClick(&desk_->program.desk(), Qt::Key_M, Qt::ControlModifier);
    QCOMPARE(MarkOf(0), UiText(UiTextId::kMarkedDone));
    QTest::keyClick(&desk_->program.desk(), Qt::Key_M, Qt::ControlModifier);
    QCOMPARE(MarkOf(0), UiText(UiTextId::kNeedsWork));
    QTest::keyClick(&desk_->program.desk(), Qt::Key_M, Qt::ControlModifier);
    QCOMPARE(MarkOf(0), QString());
  }

  void ARemarkCountsWhenItIsLeft() {
    OpenDesk();
    Remark().setFocus();
    QTest::keyClicks(&Remark(), QStringLiteral("ask Anna"));
    QVERIFY(Kept().empty());
    QTest::keyClick(&Remark(), Qt::Key_Return);
    QCOMPARE(MarkOf(0), QStringLiteral("ask Anna"));
  }

  void ARemarkStaysWithTheMessageThatItWasTypedFor() {
    OpenDesk();
    Remark().setFocus();
    QTest::keyClicks(&Remark(), QStringLiteral("ask Anna"));
    desk_->HScroll1().setValue(1);
    QTRY_COMPARE(MarkOf(0), QStringLiteral("ask Anna"));
    QCOMPARE(MarkOf(1), QString());
    QCOMPARE(Remark().text(), QString());
  }

  void MarkedMessagesCanBeListed() {
    OpenDesk();
    desk_->HScroll1().setValue(1);
    Choose(1);
    Part<QComboBox>("DeskFilter").setCurrentIndex(static_cast<int>(MessageFilter::kMarked));
    QCOMPARE(Part<QTableView>("DeskTable").model()->rowCount(), 1);
    QCOMPARE(MarkOf(0), UiText(UiTextId::kMarkedDone));
  }

  void AFileThatHoldsNoMarksIsLeftAlone() {
    desk_->folder.Write("TEST.MES.marks", "a shopping list");
    OpenDesk();
    QVERIFY(!MarkBox().isEnabled());
    QTest::keyClick(&desk_->program.desk(), Qt::Key_M, Qt::ControlModifier);
    QCOMPARE(Slurp(desk_->folder / "TEST.MES.marks"), std::string("a shopping list"));
    QVERIFY(MarkBox().parentWidget()->toolTip().contains(QStringLiteral("TEST.MES.marks")));
  }
};

namespace {
const RegisteredTest kDeskMarksTest("desk_marks_test", RunTest<DeskMarksTest>);
}  // namespace

}  // namespace vendlingua::test

#include "desk_marks_test.moc"
