#include <QProcess>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <random>
#include <string>
#include <vector>

#include "core/operations/recovery.h"
#include "desktop/application.h"
#include "desktop/qt_path.h"
#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

// A window that is killed while it saves leaves what one of its saves wrote.

namespace vendlingua::test {
namespace {

namespace fs = std::filesystem;

constexpr int kLongestRun = 30'000;  // milliseconds
// In the nine-language sample.
constexpr std::size_t kMessages = 455;
constexpr std::size_t kWidth = 16;
constexpr std::size_t kTexts = 24 + (20 + 456 * 16) + 20;  // of the first language

// Every second message, so that what changes is written in many pieces.
void SaveMessagesAs(DisplayCode letter, RunningProgram& program) {
  std::vector<NewText> texts;
  for (std::size_t message = 0; message < kMessages; message += 2) {
    texts.push_back({message, DisplayCodes(kWidth, letter)});
  }
  program.engine().workspace.set.SetTexts(texts);
  program.Choose("mnuSave");
}

// Usage: saving_victim PROGRAM_FOLDER FILE
// Saves messages of one letter, then of the next, until it is killed.
int RunSavingVictim(int argc, char** argv) {
  Application application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  DialogAnswerer user;
  RunningProgram program(ToPath(arguments.at(1)));
  user.Choose(ToPath(arguments.at(2)));
  program.Choose("mnuOpen");
  program.Choose("mnuori(1)");
  program.Choose("mnuDes(1)");
  for (DisplayCode letter = 'A';; letter = letter == 'Z' ? 'A' : letter + 1) {
    SaveMessagesAs(letter, program);
    std::cout << "saved" << std::endl;
  }
}

}  // namespace

class KilledWindowTest : public DeskTest {
  Q_OBJECT

 private:
  void KillAWindowThatSaves(const fs::path& file, int milliseconds) {
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(
        QCoreApplication::applicationFilePath(),
        {QStringLiteral("saving_victim"), ToQString(desk_->folder / "bin"), ToQString(file)});
    while (!program.canReadLine()) {
      QVERIFY(program.waitForReadyRead(kLongestRun));
    }
    QTest::qWait(milliseconds);
    program.kill();
    QVERIFY(program.waitForFinished(kLongestRun));
    QCOMPARE(program.exitStatus(), QProcess::CrashExit);
  }

  // All that was saved is of one letter (placeholders stay as they are), and nothing else changed.
  void ExpectOneSave(std::string saved, const std::string& before) {
    const char letter = saved.at(kTexts);
    for (std::size_t i = kTexts; i < kTexts + kMessages * kWidth; ++i) {
      if (saved.at(i) == letter) {
        saved[i] = before.at(i);
      }
    }
    QVERIFY(letter != before.at(kTexts));
    QVERIFY(saved == before);
  }

 private slots:
  void LeavesWhatOneSaveWrote() {
    constexpr unsigned kLongestWait = 20;
    const int windows = qEnvironmentVariableIntValue("KILLED_WINDOWS");
    std::minstd_rand random(455);
    const std::string content = Slurp(fs::path(VENDLINGUA_SAMPLES_FOLDER) / "FW0417AB.MES");
    const fs::path file = desk_->folder.Write("TEST.MES", content);
    for (int left = windows > 0 ? windows : 5; left > 0; --left) {
      KillAWindowThatSaves(file, static_cast<int>(random() % kLongestWait));
      Recover(file);
      ExpectOneSave(Slurp(file), content);
      if (QTest::currentTestFailed()) {
        return;
      }
    }
  }
};

namespace {
const RegisteredTest kKilledWindowTest("killed_window_test", RunTest<KilledWindowTest>);
const RegisteredTest kSavingVictim("saving_victim", RunSavingVictim);
}  // namespace

}  // namespace vendlingua::test

#include "killed_window_test.moc"
