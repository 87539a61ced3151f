#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QProcess>
#include <QToolTip>
#include <stdexcept>

#include "core/version.h"
#include "desktop/application.h"
#include "desktop/qt_program_starter.h"
#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

class ProgramTest : public DeskTest {
  Q_OBJECT

 private:
 private slots:
  void StartsWithoutAFile() {
    QCOMPARE(desk_->program.window().windowTitle(), QStringLiteral("Vendlingua"));
    for (const char* entry : {"mnuOrig", "mnuDest", "mnuMake", "mnuSave", "mnuSaas", "mnuTLCD"}) {
      QVERIFY2(!desk_->program.Entry(entry).isEnabled(), entry);
    }
    QVERIFY(!desk_->program.window().windowIcon().isNull());
  }

  void EveryMenuEntryHasItsShortcutAndItsMnemonic() {
    QCOMPARE(desk_->program.Entry("mnuOpen").shortcut(), QKeySequence(QStringLiteral("Ctrl+O")));
    QCOMPARE(desk_->program.Entry("mnuSave").shortcut(), QKeySequence(QStringLiteral("Ctrl+S")));
    QCOMPARE(desk_->program.Entry("mnuSaas").shortcut(),
             QKeySequence(QStringLiteral("Ctrl+Shift+S")));
    QCOMPARE(desk_->program.Entry("mnuEsci").shortcut(), QKeySequence(QStringLiteral("Ctrl+Q")));
    for (const char* entry : {"mnuFile", "mnuOpen", "mnuOrig", "mnuDest", "mnuMake", "mnuTLCD",
                              "mnuLingue", "mnuInf"}) {
      QVERIFY2(desk_->program.Entry(entry).text().contains(QLatin1Char('&')), entry);
    }
  }

  void EveryControlHasANameForScreenReaders() {
    desk_->EditMsx();
    for (const char* name : {"Text1", "HScroll1", "Label5(0)", "Label6", "Label7", "Label1(64)",
                             "Command1", "CharacterMap", "Status"}) {
      QVERIFY2(!desk_->program.Get<QWidget>(name).accessibleName().isEmpty(), name);
    }
  }

  void StaysAtTheSameHeightWhenItIsActivatedAgain() {
    FrmMes& window = desk_->program.window();
    const int top = window.y();
    QEvent activation(QEvent::ActivationChange);
    for (int i = 0; i < 3; ++i) {
      QApplication::sendEvent(&window, &activation);
      QCOMPARE(window.y(), top);
    }
  }

  // Nobody waits for such a throw, but the edits have to outlive it.
  void TellsWhatAHandlerThrowsAndGoesOn() {
    desk_->Edit(MesFile());
    desk_->Type("EDIT");
    auto* label = &desk_->program.Get<QLabel>("Label6");
    QMetaObject::invokeMethod(
        label, [] { throw std::runtime_error("the handler failed"); }, Qt::QueuedConnection);
    QTRY_COMPARE(desk_->user.boxes().size(), std::size_t{1});
    QCOMPARE(desk_->user.FirstBox().text, QStringLiteral("the handler failed"));
    QCOMPARE(desk_->user.FirstBox().title, QStringLiteral("ERROR"));
    QCOMPARE(desk_->user.FirstBox().icon, QMessageBox::Critical);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("EDIT"));
  }

  // Whatever comes out of a file or a path, in boxes and tool tips that Qt makes, too.
  void ShowsNoTextAsMarkup() {
    const QString text = QStringLiteral("<b>bold</b>");
    QLabel label(text);
    label.show();
    QCOMPARE(label.textFormat(), Qt::PlainText);
    QMessageBox box;
    box.setText(text);
    box.show();
    QCOMPARE(box.textFormat(), Qt::PlainText);
    QToolTip::showText(QPoint(0, 0), text);
    const QLabel* tip = nullptr;
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->inherits("QTipLabel")) {
        tip = qobject_cast<const QLabel*>(widget);
      }
    }
    QVERIFY(tip != nullptr);
    QCOMPARE(tip->text(), text);
    QCOMPARE(tip->textFormat(), Qt::PlainText);
  }

  void ShowsOneBoxAtATimeForWhatHandlersThrow() {
    const auto fail = [] { throw std::runtime_error("failed again"); };
    QMetaObject::invokeMethod(&desk_->program.window(), fail, Qt::QueuedConnection);
    QMetaObject::invokeMethod(&desk_->program.window(), fail, Qt::QueuedConnection);
    desk_->user.on_dialog = [&](QDialog& /*dialog*/) {
      QMetaObject::invokeMethod(&desk_->program.window(), fail, Qt::QueuedConnection);
      QApplication::processEvents();
    };
    QTRY_COMPARE(desk_->user.boxes().size(), std::size_t{1});
    QTest::qWait(50);
    QCOMPARE(desk_->user.boxes().size(), std::size_t{1});
  }

  void CaptionsTheEditorAlthoughTheChoiceCannotBeKept() {
    std::filesystem::create_directories(desk_->folder / "bin/vendlingua.ini");
    std::filesystem::create_directories(desk_->folder / "bin/user/vendlingua.ini");
    const QString before = desk_->program.Get<QLabel>("Label8(0)").text();
    desk_->program.Choose("smnuLingue(2)");
    QCOMPARE(desk_->user.boxes().size(), std::size_t{1});
    QVERIFY(UiText(19) != before);
    QCOMPARE(desk_->program.Get<QLabel>("Label8(0)").text(), UiText(19));
    QCOMPARE(desk_->program.Entry("mnuSave").text(), UiText(3));
  }

  void StartsTheSiblingBeforeItAsksAboutChanges() {
    desk_->Edit(MesFile());
    desk_->Type("EDIT");
    std::size_t started_at_question = 0;
    desk_->user.on_dialog = [&](QDialog& /*dialog*/) {
      started_at_question = desk_->program.starts().programs.size();
    };
    desk_->user.No();
    QVERIFY(desk_->program.window().close());
    QCOMPARE(started_at_question, std::size_t{1});
    QCOMPARE(desk_->program.starts().programs.front(), desk_->folder / "MACHCONFIG.EXE");
  }

  void TheMenuEntryEndsTheProgramToo() {
    desk_->program.Choose("mnuEsci");
    QVERIFY(!desk_->program.window().isVisible());
    QCOMPARE(desk_->program.starts().programs.size(), std::size_t{1});
    QCOMPARE(desk_->program.starts().programs.front(), desk_->folder / "MACHCONFIG.EXE");
  }

  void SavesBeforeItEnds() {
    const auto path = desk_->Edit(MesFile());
    desk_->Type("EDIT");
    desk_->user.Yes();
    QVERIFY(desk_->program.window().close());
    QVERIFY(Slurp(path).find("EDIT") != std::string::npos);
  }

  void DoesNotEndWhenTheChangesCannotBeSaved() {
    const auto path = desk_->Edit(MesFile());
    desk_->Type("EDIT");
    std::filesystem::remove(path);
    desk_->user.Yes();
    QVERIFY(!desk_->program.window().close());
    QVERIFY(desk_->program.window().isVisible());
    QCOMPARE(desk_->Text1().text(), QStringLiteral("EDIT"));
  }

  void EscapeIsNoAnswerToAQuestion() {
    desk_->Edit(MesFile());
    desk_->Type("EDIT");
    desk_->user.on_dialog = [](QDialog& dialog) {
      QTest::keyClick(&dialog, Qt::Key_Escape);
      dialog.close();
    };
    desk_->user.Yes();
    QVERIFY(desk_->program.window().close());
    QCOMPARE(desk_->user.boxes().size(), std::size_t{1});
  }

  void StartsTheSiblingProgramInItsFolder() {
    const auto script = desk_->folder.Write("MACHCONFIG.EXE", "#!/bin/sh\npwd > started\n");
    std::filesystem::permissions(script, std::filesystem::perms::owner_all);
    QtProgramStarter().Start(script);
    QTRY_VERIFY(std::filesystem::exists(desk_->folder / "started"));
    QtProgramStarter().Start(desk_->folder / "NO SUCH PROGRAM");
  }

  void ShowsTitleAndRevision() {
    desk_->program.Choose("mnuInf");
    FrmInfo* info = desk_->program.info();
    QVERIFY(info->isVisible());
    QCOMPARE(info->findChild<QLabel*>(QStringLiteral("Label1(0)"))->text(),
             QStringLiteral("Vendlingua"));
    QCOMPARE(info->findChild<QLabel*>(QStringLiteral("Label1(1)"))->text(),
             QStringLiteral("Rev. ") + QString::fromLatin1(kVersion));
    QVERIFY(!info->findChild<QLabel*>(QStringLiteral("Image2"))->pixmap().isNull());
    QCOMPARE(info->x(), 300);
    QVERIFY(qAbs(info->y() - (3500.0 / 15 - 0.075 * info->height())) <= 1);
    QTest::keyClick(info, Qt::Key_Escape);
    QTRY_VERIFY(desk_->program.info() == nullptr);
  }
};

namespace {
const RegisteredTest kProgramTest("program_test", RunTest<ProgramTest, Application>);
}  // namespace

}  // namespace vendlingua::test

#include "program_test.moc"
