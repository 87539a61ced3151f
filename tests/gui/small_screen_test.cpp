#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QScrollArea>
#include <QSplitter>
#include <QStyle>
#include <QTableView>

#include "desktop/desk/preview_dialog.h"
#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

namespace {

// A screen of 1366 x 768 at 200 %, less the title of a window.
constexpr QSize kRoom(683, 384 - 30);

}  // namespace

/// Every window fits a small screen in every interface language.
class SmallScreenTest : public DeskTest {
  Q_OBJECT

 private:
  void Speak() {
    QFETCH(QByteArray, entry);
    desk_->program.Choose(entry.constData());
  }

  static void CheckThatItFits(const QWidget& window) {
    const QSize smallest = window.minimumSizeHint().expandedTo(window.minimumSize());
    const QString found = QStringLiteral("%1: %2 x %3")
                              .arg(window.windowTitle())
                              .arg(smallest.width())
                              .arg(smallest.height());
    QVERIFY2(smallest.width() <= kRoom.width() && smallest.height() <= kRoom.height(),
             qPrintable(found));
  }

 private slots:
  void TheDesk_data() { AddEntriesOfLanguages(); }
  void TheDesk() {
    Speak();
    desk_->Edit(MesFile());
    desk_->program.Choose("mnuDesk");
    CheckThatItFits(desk_->program.desk());
  }

  // It scrolls up and down alone.
  void WhatStandsBesideTheTableIsAsWideAsItNeeds_data() { AddEntriesOfLanguages(); }
  void WhatStandsBesideTheTableIsAsWideAsItNeeds() {
    Speak();
    desk_->Edit(MesFile());
    desk_->program.Choose("mnuDesk");
    QVERIFY(QTest::qWaitForWindowActive(&desk_->program.desk()));
    const auto& area = *desk_->program.desk().findChild<QScrollArea*>(QStringLiteral("DeskSide"));
    QTRY_VERIFY(area.viewport()->width() >= area.widget()->minimumSizeHint().width());
    QCOMPARE(area.widget()->width(), area.viewport()->width());
  }

  void WhatIsLookedForCanBeRead_data() { AddEntriesOfLanguages(); }
  void WhatIsLookedForCanBeRead() {
    Speak();
    desk_->Edit(MesFile());
    desk_->program.Choose("mnuDesk");
    desk_->program.desk().resize(kRoom);
    QApplication::processEvents();
    const auto& find = desk_->program.GetInDesk<QLineEdit>("DeskFind");
    QVERIFY(find.width() >=
            find.fontMetrics().horizontalAdvance(QStringLiteral("Self-diagnostics")));
    for (const char* name : {"DeskFindTexts", "DeskSecondReference", "DeskFilter"}) {
      const auto& box = desk_->program.GetInDesk<QComboBox>(name);
      QVERIFY2(box.width() >= box.sizeHint().width(), name);
    }
  }

  void TheTableTakesTheWidthOfWhatIsPushedAside() {
    desk_->Edit(MesFile());
    desk_->program.Choose("mnuDesk");
    desk_->program.desk().resize(kRoom);
    auto& parts = *desk_->program.desk().findChild<QSplitter*>();
    parts.setSizes({kRoom.width(), 0});
    const auto& table = desk_->program.GetInDesk<QTableView>("DeskTable");
    QCOMPARE(table.width(), parts.width() - parts.handleWidth());
  }

  void TheDeskIsNotLargerThanTheScreen() {
    desk_->program.Choose("mnuDesk");
    const QSize room = desk_->program.desk().screen()->availableSize();
    QCOMPARE(desk_->program.desk().size().boundedTo(room), desk_->program.desk().size());
  }

  void ThePreview_data() { AddEntriesOfLanguages(); }
  void ThePreview() {
    Speak();
    const PreviewDialog dialog(desk_->program.workspace(), Preview(), nullptr);
    CheckThatItFits(dialog);
  }

  void TheCompiler_data() { AddEntriesOfLanguages(); }
  void TheCompiler() {
    Speak();
    desk_->Edit(MesFile());
    desk_->program.Choose("mnuMake");
    CheckThatItFits(*desk_->program.compiler());
  }

  void TheInformation_data() { AddEntriesOfLanguages(); }
  void TheInformation() {
    Speak();
    desk_->program.Choose("mnuInf");
    CheckThatItFits(*desk_->program.info());
  }
};

namespace {
const RegisteredTest kSmallScreenTest("small_screen_test", RunTest<SmallScreenTest>);
}  // namespace

}  // namespace vendlingua::test

#include "small_screen_test.moc"
