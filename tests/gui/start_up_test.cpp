#include "core/operations/start_up.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <QLabel>
#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "core/platform/executable_folder.h"
#include "desktop/fonts/qt_font_list.h"
#include "desktop/program_folders.h"
#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"
#include "support/hostile_names.h"
#include "support/scripted_dialogs.h"

namespace vendlingua::test {
namespace {

namespace fs = std::filesystem;

constexpr int kEntries = 10;

class FixedFontList : public FontList {
 public:
  explicit FixedFontList(std::vector<std::string> families) : families_(std::move(families)) {}

  std::vector<std::string> Families() const override { return families_; }

 private:
  std::vector<std::string> families_;
};

constexpr const char* kStartHere = "start_here";

// What the program does before its window is shown, in the folder where this file lies: the exit
// status of a process. Nobody is there to answer a dialog.
int StartHere(int argc, char** argv) {
  const QApplication application(argc, argv);
  ScriptedDialogs dialogs;
  Workspace workspace;
  workspace.folders = ProgramFolders();
  const QtFontList fonts(workspace.folders.program / "fonts");
  const bool started = StartUp(workspace, dialogs, fonts).Form_Load();
  return started && workspace.LanguageName == "svenska" ? 0 : 1;
}

const RegisteredTest kStartHereRun(kStartHere, StartHere);

// Lays this file into `folder` and starts it there. The exit status, or -1.
int StartProgramIn(const fs::path& folder) {
  const fs::path program = folder / ExecutableFile().filename();
  std::error_code other_disk;
  fs::create_hard_link(ExecutableFile(), program, other_disk);
  if (other_disk) {
    fs::copy_file(ExecutableFile(), program);
  }
  std::string path = program.native();
  std::string option = kStartHere;
  const std::array<char*, 3> arguments = {path.data(), option.data(), nullptr};
  pid_t process = 0;
  int status = 0;
  if (posix_spawn(&process, path.c_str(), nullptr, nullptr, arguments.data(), environ) != 0 ||
      waitpid(process, &status, 0) != process || !WIFEXITED(status)) {
    return -1;
  }
  return WEXITSTATUS(status);
}

}  // namespace

// Every test prepares the folder of the program before it starts it.
class StartUpTest : public DeskTest {
  Q_OBJECT

 private:
  fs::path ProgramFile(const std::string& name) { return desk_->folder / ("bin/" + name); }

  void AddLanguage(const std::string& name) {
    fs::copy_file(ProgramFile("italiano.lng"), ProgramFile(name + ".lng"));
  }

  void RemoveLanguages() {
    for (const auto& entry : fs::directory_iterator(desk_->folder / "bin")) {
      fs::remove(entry.path());
    }
  }

  void Start() {
    QVERIFY(desk_->program.Load());
    desk_->program.Show();
  }

  QAction& Language(int index) {
    return desk_->program.Entry(qPrintable(QStringLiteral("smnuLingue(%1)").arg(index)));
  }

  QStringList ListedLanguages() {
    QStringList names;
    for (int i = 0; i < kEntries; ++i) {
      if (Language(i).isVisible()) {
        names += Language(i).text();
      }
    }
    return names;
  }

  // The interface is in the language of this name, and in no other.
  void ExpectLanguage(const QString& name, const QString& caption_of_save) {
    for (int i = 0; i < kEntries; ++i) {
      QCOMPARE(Language(i).isChecked(), Language(i).text() == name);
    }
    QCOMPARE(desk_->program.Entry("mnuSave").text(), caption_of_save);
  }

  void ExpectOneBox(const QString& text, const QString& title) {
    QCOMPARE(desk_->user.boxes().size(), std::size_t{1});
    QCOMPARE(desk_->user.FirstBox().text, text);
    QCOMPARE(desk_->user.FirstBox().title, title);
    QCOMPARE(desk_->user.FirstBox().icon, QMessageBox::Critical);
  }

  // Shows the main window at a height of the screen and lets it become active.
  void ShowAt(int top) {
    QVERIFY(desk_->program.Load());
    desk_->program.window().move(100, top);
    desk_->program.Show();
    QVERIFY(QTest::qWaitForWindowActive(&desk_->program.window()));
  }

  void ActivateAgain() {
    QEvent activation(QEvent::ActivationChange);
    QApplication::sendEvent(&desk_->program.window(), &activation);
  }

 private slots:
  void init() { desk_ = std::make_unique<Desk>(RunningProgram::Start::kLater); }

  void RefusesToStartWithoutADisplayFont_data() {
    QTest::addColumn<std::string>("missing");
    for (const char* family : {"LCD", "LCD_CY", "LCD KTV", "LCD HBR"}) {
      QTest::newRow(family) << std::string(family);
    }
  }
  void RefusesToStartWithoutADisplayFont() {
    QFETCH(std::string, missing);
    std::vector<std::string> families = {"Courier New", "LCD", "LCD_CY", "LCD KTV", "LCD HBR"};
    std::erase(families, missing);
    QVERIFY(!desk_->program.Load(FixedFontList(families)));
    ExpectOneBox(QStringLiteral("Mancano i font del display.\nInstallare i font LCD, LCD_CY, LCD "
                                "KTV e LCD HBR e riavviare il programma."),
                 QStringLiteral("Errore"));
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
  }

  void TakesTheNamesOfTheFontsInAnyCase() {
    QVERIFY(desk_->program.Load(FixedFontList({"Lcd Hbr", "LCD ktv", "lcd_cy", "lcd"})));
  }

  void RefusesToStartWithoutALanguageFile() {
    RemoveLanguages();
    QVERIFY(!desk_->program.Load());
    ExpectOneBox(QStringLiteral("File missing!\nReinstall program"), QStringLiteral("Error"));
  }

  void StartsWithoutTheReferenceLanguage() {
    fs::remove(ProgramFile("italiano.lng"));
    QVERIFY(desk_->program.Load());
    QCOMPARE(desk_->user.boxes().size(), std::size_t{1});
    QVERIFY(desk_->user.FirstBox().text.contains(QStringLiteral("italiano.lng")));
  }

  void ListsTheFirstTenOfElevenLanguages() {
    AddLanguage("suomi");
    AddLanguage("zulu");
    Start();
    QCOMPARE(ListedLanguages(),
             QString::fromLatin1("dansk deutsch english espanol francais italiano nederlands "
                                 "portugues suomi svenska")
                 .split(QLatin1Char(' ')));
  }

  void ListsOnlyTheLanguagesThatAreThere() {
    RemoveLanguages();
    fs::copy_file(fs::path(VENDLINGUA_LANGUAGES_FOLDER) / "italiano.lng",
                  ProgramFile("italiano.lng"));
    Start();
    QCOMPARE(ListedLanguages(), QStringList(QStringLiteral("italiano")));
  }

  void SpeaksTheLanguageOfTheSettings() {
    desk_->folder.Write("bin/vendlingua.ini", "Lingua=english\r\n");
    Start();
    ExpectLanguage(QStringLiteral("english"), QStringLiteral("&Save"));
  }

  void SpeaksTheFirstLanguageWhenTheSettingsNameNoneThatCounts_data() {
    QTest::addColumn<std::string>("settings");
    QTest::newRow("empty file") << std::string();
    QTest::newRow("empty name") << std::string("Lingua=\r\n");
    QTest::newRow("short line") << std::string("Ling\r\n");
    QTest::newRow("language that is gone") << std::string("Lingua=latino\r\n");
    QTest::newRow("tenth language") << std::string("Lingua=svenska\r\n");
  }
  void SpeaksTheFirstLanguageWhenTheSettingsNameNoneThatCounts() {
    QFETCH(std::string, settings);
    AddLanguage("suomi");
    desk_->folder.Write("bin/vendlingua.ini", settings);
    Start();
    ExpectLanguage(QStringLiteral("dansk"), QStringLiteral("&Gem"));
  }

  void RemembersTheLanguageForTheNextStart() {
    Start();
    desk_->program.Choose("smnuLingue(4)");
    RunningProgram next(desk_->folder / "bin");
    QVERIFY(next.Entry("smnuLingue(4)").isChecked());
    QCOMPARE(next.Entry("mnuSave").text(), desk_->program.Entry("mnuSave").text());
  }

  void FindsWhatItNeedsInAFolderOfAnyName_data() {
    QTest::addColumn<std::string>("name");
    int number = 0;
    for (const std::string& name : HostileNames()) {
      QTest::addRow("folder %d", number++) << name;
    }
  }
  void FindsWhatItNeedsInAFolderOfAnyName() {
    QFETCH(std::string, name);
    const fs::path folder = desk_->folder / name;
    fs::copy(VENDLINGUA_LANGUAGES_FOLDER, folder);
    fs::copy(VENDLINGUA_FONTS_FOLDER, folder / "fonts");
    desk_->folder.Write(name + "/gui_tests.ini", "Lingua=svenska\r\n");
    QCOMPARE(StartProgramIn(folder), 0);
  }

  void AWindowThatComesUpHighGoesToTheTopOfTheScreen() {
    ShowAt(100);  // 1500 twips
    QCOMPARE(desk_->program.window().y(), 0);
  }

  void AWindowThatComesUpLowIsLiftedOnce() {
    ShowAt(200);                                // 3000 twips
    QCOMPARE(desk_->program.window().y(), 67);  // 1000 twips
    QCOMPARE(desk_->program.window().x(), 100);
    ActivateAgain();
    ActivateAgain();
    QCOMPARE(desk_->program.window().y(), 67);
  }
};

namespace {
const RegisteredTest kStartUpTest("start_up_test", RunTest<StartUpTest>);
}  // namespace

}  // namespace vendlingua::test

#include "start_up_test.moc"
