#include <qpa/qwindowsysteminterface.h>

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QToolButton>
#include <QUrl>
#include <QWheelEvent>

#include "desktop/qt_path.h"
#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

/// The main window tells where one is, and leads on from there.
class MainWindowTest : public DeskTest {
  Q_OBJECT

 private:
  // Five messages of which 1 and 3 are to do.
  void OpenFile() {
    MesFile mes;
    mes.names = {"Default", "ITALIANO", "ENGLISH"};
    mes.last_msg = 4;
    mes.stride = 5;
    std::string content = mes.Bytes();
    for (const std::size_t message : {1U, 3U}) {
      const std::string text = mes.Message(2, message);
      content.replace(content.find(text), text.size(), text.size(), ' ');
    }
    desk_->Edit(content);
    desk_->program.Choose("mnuDes(2)");
    Activate();
  }

  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
    QTest::keyClick(&desk_->Text1(), key, modifiers);
  }
  int Current() { return desk_->view().Label6; }
  QString State() { return Get<QLabel>("StatusState").text(); }
  QString Line() { return Get<QLabel>("Status").text(); }

  void Drop(const std::filesystem::path& file, QWidget& target) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(ToQString(file))});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &drop);
  }

  // As the window system tells it: only such a turn goes on to the parents of a widget.
  void TurnWheelOver(QWidget& widget, int angle) {
    QWidget& window = desk_->program.window();
    const QPoint place = widget.mapTo(&window, widget.rect().center());
    QWindowSystemInterface::handleWheelEvent(window.windowHandle(), place,
                                             window.mapToGlobal(place), QPoint(), QPoint(0, angle));
    QApplication::processEvents();
  }

 private slots:
  void TheStateStandsInTheStatusLine() {
    QCOMPARE(State(), QString());
    OpenFile();
    QVERIFY2(State().endsWith(QStringLiteral("0/4  4/4")), qPrintable(State()));
    QCOMPARE(Get<QLabel>("StatusState").toolTip(),
             QStringLiteral("ITALIANO \u2192 ENGLISH  0/4  4/4"));
    desk_->Type("AB");
    QVERIFY2(State().endsWith(QStringLiteral("0/4  2/4  \u25CF")), qPrintable(State()));
  }

  void TheOpenLanguagesAreChecked() {
    OpenFile();
    QVERIFY(desk_->program.Entry("mnuori(1)").isChecked());
    QVERIFY(!desk_->program.Entry("mnuori(2)").isChecked());
    QVERIFY(desk_->program.Entry("mnuDes(2)").isChecked());
    desk_->program.Choose("mnuDes(1)");
    QVERIFY(desk_->program.Entry("mnuDes(1)").isChecked());
    QVERIFY(!desk_->program.Entry("mnuDes(2)").isChecked());
  }

  void KeysGoToTheEnds() {
    OpenFile();
    Press(Qt::Key_End);
    QCOMPARE(Current(), 4);
    Press(Qt::Key_Home);
    QCOMPARE(Current(), 0);
  }

  void KeysGoToWhatIsToDo() {
    OpenFile();
    Press(Qt::Key_Down);
    QCOMPARE(Current(), 1);
    Press(Qt::Key_Down);
    QCOMPARE(Current(), 3);
    Press(Qt::Key_Up);
    QCOMPARE(Current(), 1);
    Press(Qt::Key_Up);
    QCOMPARE(Current(), 3);
  }

  void AMessageIsGoneToByItsNumber() {
    OpenFile();
    desk_->user.Type(QStringLiteral("3"));
    Press(Qt::Key_G);
    QCOMPARE(Current(), 3);
    QCOMPARE(desk_->user.inputs().back().prompt, Say(UiSentence(UiTextId::kGoToPrompt, 4)));
    desk_->user.Type(QStringLiteral("2"));
    QTest::mouseClick(&Get<QLabel>("Label6"), Qt::LeftButton);
    QCOMPARE(Current(), 2);
  }

  void ANumberThatIsNoneGoesNowhere() {
    OpenFile();
    for (const char* answer : {"5", "-1", "x", "1x", "99999999999999999999"}) {
      Activate();
      desk_->user.Type(QLatin1String(answer));
      Press(Qt::Key_G);
      QCOMPARE(Current(), 0);
      QCOMPARE(Status(), Say(UiSentence(UiTextId::kNoSuchMessage, answer)));
    }
    Activate();
    desk_->user.Cancel();
    Press(Qt::Key_G);
    QCOMPARE(Current(), 0);
  }

  void WithoutAnOriginThereIsNowhereToGo() {
    desk_->Open("TEST.MES", MesFile().Bytes());
    Activate();
    QTest::keyClick(&desk_->program.window(), Qt::Key_G, Qt::ControlModifier);
    QTest::keyClick(&desk_->program.window(), Qt::Key_Down, Qt::ControlModifier);
    QTest::mouseClick(&Get<QLabel>("Label6"), Qt::LeftButton);
    QCOMPARE(Current(), 0);
  }

  void TheWheelTurnsOverTheCells() {
    OpenFile();
    TurnWheelOver(Cell(0), -QWheelEvent::DefaultDeltasPerStep);
    QCOMPARE(Current(), 1);
    TurnWheelOver(desk_->Text1(), -2 * QWheelEvent::DefaultDeltasPerStep);
    QCOMPARE(Current(), 3);
    TurnWheelOver(Get<QLabel>("Label6"), QWheelEvent::DefaultDeltasPerStep);
    QCOMPARE(Current(), 2);
  }

  void SaysWhatToDoNext() {
    QCOMPARE(Line(), UiText(UiTextId::kHintOpen));
    desk_->Open("TEST.MES", MesFile().Bytes());
    QCOMPARE(Line(), UiText(UiTextId::kHintOrigin));
    desk_->program.Choose("mnuori(1)");
    QVERIFY(!Line().isEmpty());
    desk_->program.Choose("mnuDes(1)");
    QCOMPARE(Line(), QString());
  }

  void WhatIsCutCanBeReadInFull() {
    OpenFile();
    QVERIFY(!Get<QToolButton>("StatusDetails").isVisible());
    desk_->program.Choose("mnuSave");
    QVERIFY(Get<QToolButton>("StatusDetails").isVisible());
    QVERIFY2(!State().contains(QChar(0x2026)), "the languages are whole or not there");
    const QString status = Status();
    Get<QToolButton>("StatusDetails").click();
    QCOMPARE(desk_->user.LastBox().text, status);
    QCOMPARE(Status(), status);
  }

  void ADroppedFileOpens() {
    Drop(desk_->folder.Write("TEST.MES", MesFile().Bytes()), desk_->program.window());
    QCOMPARE(desk_->program.set().phase, Phase::kFileOpen);
    QCOMPARE(desk_->program.window().windowTitle(), QStringLiteral("TEST.MES"));
  }

  void AFileDroppedOnTheEditBoxOpensToo() {
    OpenFile();
    Drop(desk_->folder.Write("OTHER.MES", MesFile().Bytes()), desk_->Text1());
    QCOMPARE(desk_->program.window().windowTitle(), QStringLiteral("OTHER.MES"));
  }

  void AFileOfAnUnknownTypeSaysSo() {
    const auto file = desk_->folder.Write("TEST.TXT", "x");
    Drop(file, desk_->program.window());
    QCOMPARE(desk_->program.set().phase, Phase::kNoFile);
    QVERIFY(Status().startsWith(QStringLiteral("TEST.TXT")));
  }

  void RecentFilesOpenAgain() {
    desk_->Open("FIRST.MES", MesFile().Bytes());
    desk_->Open("SECOND.MES", MesFile().Bytes());
    auto& menu = *desk_->program.window().findChild<QMenu*>(QStringLiteral("mnuRecent"));
    emit menu.aboutToShow();
    QCOMPARE(menu.actions().at(0)->text(), QStringLiteral("SECOND.MES"));
    menu.actions().at(1)->trigger();
    QCOMPARE(desk_->program.window().windowTitle(), QStringLiteral("FIRST.MES"));
    emit menu.aboutToShow();
    QCOMPARE(menu.actions().at(0)->text(), QStringLiteral("FIRST.MES"));
  }

  void ANewLanguageIsBlankAndNamed() {
    OpenFile();
    desk_->user.Type(QStringLiteral("suomi"));
    desk_->program.Choose("mnuNewLanguage");
    QCOMPARE(desk_->program.set().phase, Phase::kDestinationUnnamed);
    QCOMPARE(desk_->Stored(0), std::string(4, ' '));
    QVERIFY(State().contains(QStringLiteral("SUOMI")) ||
            Get<QLabel>("StatusState").toolTip().contains(QStringLiteral("SUOMI")));
    desk_->program.Choose("mnuSave");
    QCOMPARE(desk_->program.Entry("mnuDes(3)").text(), QStringLiteral("SUOMI"));
  }

  void ANewLanguageWithoutANameIsNone() {
    OpenFile();
    desk_->user.Cancel();
    desk_->program.Choose("mnuNewLanguage");
    QCOMPARE(desk_->program.set().phase, Phase::kDestinationOpen);
  }

  void TypingWhereTheBoardWritesSaysSo() {
    MesFile mes;
    std::string content = mes.Bytes();
    const std::string text = mes.Message(1, 0);
    content.replace(content.rfind(text), text.size(),
                    "A\xFE"
                    "BB");
    desk_->Edit(content);
    desk_->Type("A");
    QCOMPARE(Status(), QString());
    desk_->Type("AX");
    QCOMPARE(Status(), UiText(UiTextId::kBoardWritesHere));
  }

  void ADisplayTypeThatTheFileDoesNotKeepSaysSo() {
    desk_->EditMsx();
    desk_->program.Choose("mnuLCD(1)");
    QCOMPARE(Status(), UiText(UiTextId::kDisplayTypeNotKept));
  }

  // The Cyrillic display has a code for a letter that Windows-1252 lacks: "Ж" is code 163 there.
  void LettersOfTheDisplayAreTyped() {
    OpenFile();
    desk_->program.Choose("mnuLCD(1)");
    desk_->Text1().selectAll();
    QTest::sendKeyEvent(QTest::Click, &desk_->Text1(), Qt::Key_unknown, QStringLiteral("\u0416"),
                        Qt::NoModifier);
    QCOMPARE(desk_->Stored(0), std::string("\xA3   "));
    QCOMPARE(Status(), QString());
  }
};

namespace {
const RegisteredTest kMainWindowTest("main_window_test", RunTest<MainWindowTest>);
}  // namespace

}  // namespace vendlingua::test

#include "main_window_test.moc"
