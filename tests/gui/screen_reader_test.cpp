#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qpa/qplatformaccessibility.h>
#include <QtGui/qpa/qplatformintegration.h>

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {
namespace {

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
constexpr QAccessible::Event kAnnouncement = QAccessible::Announcement;
#else
constexpr QAccessible::Event kAnnouncement = QAccessible::Alert;
#endif

QStringList announced;

// What a screen reader is told about the status line.
void NoteAnnouncement(QAccessibleEvent* event) {
  if (event->type() == kAnnouncement && event->object()->objectName() == u"Status") {
    announced += event->accessibleInterface()->text(QAccessible::Description);
  }
}

// Qt says nothing while nobody listens, and the offscreen platform has nobody who could.
void ActAsIfAScreenReaderWasThere() {
  QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
}

}  // namespace

class ScreenReaderTest : public DeskTest {
  Q_OBJECT

 private:
  QString Said(const char* control, QAccessible::Text kind) {
    auto& widget = desk_->program.Get<QWidget>(control);
    return QAccessible::queryAccessibleInterface(&widget)->text(kind);
  }
  QString Name(const char* control) { return Said(control, QAccessible::Name); }
  QString Content(const char* control) { return Said(control, QAccessible::Description); }

  QString NameOfTheWindow() {
    return QAccessible::queryAccessibleInterface(&desk_->program.window())->text(QAccessible::Name);
  }

 private slots:
  void SaysWhichFileIsOpen() {
    QCOMPARE(NameOfTheWindow(), QStringLiteral("Vendlingua"));
    desk_->Edit(MesFile());
    QCOMPARE(NameOfTheWindow(), QStringLiteral("TEST.MES - Vendlingua"));
  }

  void SaysTheNumberOfTheMessage() {
    desk_->Edit(MesFile());
    desk_->HScroll1().setValue(2);
    QCOMPARE(Name("Label6"), UiText(66));
    QCOMPARE(Content("Label6"), QStringLiteral("2"));
  }

  void SaysThePreviewedCharacter() {
    desk_->Edit(MesFile());
    QTest::keyClick(&desk_->Text1(), 'Q');
    QCOMPARE(Name("Label7"), UiText(69));
    QCOMPARE(Content("Label7"), QStringLiteral("Q"));
  }

  void SaysAPreviewedControlCodeAsPlainText() {
    desk_->Edit(MesFile());
    desk_->program.Get<QPushButton>("Command1").click();
    QTest::mouseClick(&desk_->program.Get<QLabel>("Label1(126)"), Qt::LeftButton);
    QCOMPARE(Content("Label7"), QStringLiteral("\u007F"));
  }

  void SaysTheWholeStatus() {
    desk_->Edit(MesFile());
    desk_->Type("EDIT");
    desk_->program.Choose("mnuSave");
    QCOMPARE(Name("Status"), UiText(70));
    QVERIFY(Content("Status").startsWith(UiText(54)));
    QVERIFY(Content("Status").endsWith(QStringLiteral("TEST.MES")));
  }

  void SaysTheStatusOfTheCompiler() {
    desk_->Edit(MesFile());
    desk_->program.Choose("mnuMake");
    auto& status = desk_->program.GetInCompiler<QLabel>("Status");
    const QAccessibleInterface& said = *QAccessible::queryAccessibleInterface(&status);
    QCOMPARE(said.text(QAccessible::Name), UiText(70));
    QCOMPARE(said.text(QAccessible::Description), status.text());
    QVERIFY(status.text().startsWith(UiText(58)));
  }

  void AnnouncesEveryNewStatusOnce() {
    desk_->Edit(MesFile());
    desk_->Type("EDIT");
    announced.clear();
    ActAsIfAScreenReaderWasThere();
    const QAccessible::UpdateHandler before = QAccessible::installUpdateHandler(&NoteAnnouncement);
    desk_->program.Choose("mnuSave");
    desk_->HScroll1().setValue(1);  // clears the status: nothing to say
    desk_->HScroll1().setValue(0);
    QAccessible::installUpdateHandler(before);
    QCOMPARE(announced.size(), 1);
    QVERIFY(announced.front().startsWith(UiText(54)));
  }
};

namespace {
const RegisteredTest kScreenReaderTest("screen_reader_test", RunTest<ScreenReaderTest>);
}  // namespace

}  // namespace vendlingua::test

#include "screen_reader_test.moc"
