#include <QProcess>
#include <QTimer>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <string>

#include "desktop/application.h"
#include "desktop/qt_path.h"
#include "desktop/sudden_end.h"
#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

// A program that is ended in the middle of the work leaves its edits to the next one.

namespace vendlingua::test {
namespace {

namespace fs = std::filesystem;

constexpr int kMostMilliseconds = 30'000;
constexpr int kMostMillisecondsToEnd = 2'000;

void TellThatItIsReady() { std::cout << "ready" << std::endl; }

// Usage: edits_victim PROGRAM_FOLDER FILE kept|typed|box
// Edits a file and waits for its end: when the edit is kept, as soon as it is typed, or in a box.
int RunVictim(int argc, char** argv) {
  Application application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  const QString state = arguments.at(3);
  DialogAnswerer user;
  RunningProgram program(ToPath(arguments.at(1)));
  const SuddenEnd sudden_end([&] { program.window().KeepEdits(); });
  user.Choose(ToPath(arguments.at(2)));
  program.Choose("mnuOpen");
  program.Choose("mnuori(1)");
  program.Choose("mnuDes(1)");
  auto& edit = program.Get<QLineEdit>("Text1");
  edit.selectAll();
  QTest::keyClicks(&edit, QStringLiteral("EDIT"));
  if (state == QStringLiteral("kept")) {
    while (program.engine().unsaved_edits.IsBehind()) {
      QTest::qWait(10);
    }
  } else if (state == QStringLiteral("box")) {
    user.on_dialog = [](QDialog& /*dialog*/) {
      TellThatItIsReady();
      QTest::qWait(kMostMilliseconds);
    };
    user.Cancel();
    program.Choose("mnuSaas");
  }
  TellThatItIsReady();
  return QApplication::exec();
}

}  // namespace

class UnsavedEditsTest : public DeskTest {
  Q_OBJECT

 private:
  const std::string content_ = MesFile().Bytes();
  fs::path path_;

  // Another program edits the file and is ended by a signal.
  void EndAProgram(const QString& state, int signal) {
    path_ = desk_->folder.Write("TEST.MES", content_);
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("edits_victim"), ToQString(desk_->folder / "bin"),
                   ToQString(path_), state});
    while (!program.canReadLine()) {
      QVERIFY(program.waitForReadyRead(kMostMilliseconds));
    }
    QCOMPARE(::kill(static_cast<pid_t>(program.processId()), signal), 0);
    QVERIFY(program.waitForFinished(kMostMillisecondsToEnd));
    QCOMPARE(program.exitStatus(), QProcess::CrashExit);
    QCOMPARE(Slurp(path_), content_);
  }

 private slots:
  void AreOfferedAfterASignal_data() {
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("signal");
    QTest::newRow("killed") << QStringLiteral("kept") << SIGKILL;
    QTest::newRow("terminated") << QStringLiteral("typed") << SIGTERM;
    QTest::newRow("hung up") << QStringLiteral("typed") << SIGHUP;
    QTest::newRow("interrupted") << QStringLiteral("typed") << SIGINT;
    QTest::newRow("terminated in a box") << QStringLiteral("box") << SIGTERM;
  }
  void AreOfferedAfterASignal() {
    QFETCH(QString, state);
    QFETCH(int, signal);
    EndAProgram(state, signal);
    desk_->user.Choose(path_);
    desk_->user.Yes();
    desk_->program.Choose("mnuOpen");
    QCOMPARE(desk_->user.FirstBox().text,
             Say(UiSentence(UiTextId::kUnsavedEditsQuestion, path_.string(), 1)));
    QCOMPARE(desk_->Text1().text(), QStringLiteral("EDIT"));
    QVERIFY(desk_->Modified());
    desk_->program.Choose("mnuSave");
    QCOMPARE(Slurp(path_), std::string(content_).replace(24 + 36 + 20, 4, "EDIT"));
  }

  void AreOfferedFromWhereverTheFileIsOpened() {
    EndAProgram(QStringLiteral("kept"), SIGKILL);
    desk_->user.Yes();
    desk_->program.window().OpenFile(path_);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("EDIT"));
  }

  void AreWrittenHalfASecondAfterTheyWereTyped() {
    path_ = desk_->Edit(content_);
    desk_->Type("EDIT");
    QVERIFY(desk_->program.engine().unsaved_edits.IsBehind());
    QTRY_VERIFY(!desk_->program.engine().unsaved_edits.IsBehind());
    QVERIFY(!fs::is_empty(desk_->folder / "bin/user/journals"));
  }

  void AreNotKeptBehindTheEndThatTheUserWants() {
    desk_->Edit(content_);
    desk_->Type("EDIT");
    QTRY_VERIFY(!desk_->program.engine().unsaved_edits.IsBehind());
    desk_->user.No();
    QVERIFY(desk_->program.window().close());
    QVERIFY(fs::is_empty(desk_->folder / "bin/user/journals"));
  }

  void AreToldOfOnceWhenTheyCannotBeKept() {
    desk_->folder.Write("bin/user", "no folder");
    desk_->Edit(content_);
    desk_->Type("EDIT");
    QTRY_VERIFY(Status().startsWith(UiText(UiTextId::kEditsNotKept)));
    QVERIFY(desk_->user.boxes().empty());
    QCOMPARE(desk_->Text1().text(), QStringLiteral("EDIT"));
  }
};

namespace {
const RegisteredTest kUnsavedEditsTest("unsaved_edits_test", RunTest<UnsavedEditsTest>);
const RegisteredTest kEditsVictim("edits_victim", RunVictim);
}  // namespace

}  // namespace vendlingua::test

#include "unsaved_edits_test.moc"
