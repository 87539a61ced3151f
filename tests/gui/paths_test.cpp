#include <QByteArray>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QFontDatabase>
#include <QStandardPaths>
#include <filesystem>
#include <fstream>
#include <string>

#include "core/operations/start_up.h"
#include "desktop/fonts/qt_font_list.h"
#include "desktop/program_folders.h"
#include "desktop/qt_folder.h"
#include "desktop/qt_program_starter.h"
#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"
#include "support/hostile_names.h"

namespace vendlingua::test {
namespace {

namespace fs = std::filesystem;

// A variable of the environment that has another value for a while.
class Environment {
 public:
  Environment(const char* variable, const std::string& value)
      : variable_(variable), before_(qgetenv(variable)) {
    qputenv(variable, QByteArray::fromStdString(value));
  }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;
  ~Environment() { qputenv(variable_, before_); }

 private:
  const char* variable_;
  QByteArray before_;
};

}  // namespace

// What the program does in folders of any name.
class PathsTest : public DeskTest {
  Q_OBJECT

 private:
  // Every test is run in one folder after the other.
  static void AddFolderNames() {
    QTest::addColumn<std::string>("name");
    int number = 0;
    for (const std::string& name : HostileNames()) {
      QTest::addRow("folder %d", number++) << name;
    }
  }

  fs::path MakeFolder() {
    QFETCH(std::string, name);
    fs::create_directory(desk_->folder / name);
    return desk_->folder / name;
  }

  // Opens a file of the folder that the dialog starts in, its first language as destination.
  void Edit(RunningProgram& program, const char* name) {
    desk_->user.Choose(name);
    program.Choose("mnuOpen");
    program.Choose("mnuori(1)");
    program.Choose("mnuDes(1)");
  }

 private slots:
  void init() { desk_ = std::make_unique<Desk>(RunningProgram::Start::kLater); }

  void OpensAndSavesAFileOfItsFolder_data() { AddFolderNames(); }
  void OpensAndSavesAFileOfItsFolder() {
    const fs::path folder = MakeFolder();
    RunningProgram program(folder);
    std::ofstream(folder / "TEST.MES", std::ios::binary) << MesFile().Bytes();
    Edit(program, "TEST.MES");
    QVERIFY(program.set().CurrentFileName == folder / "TEST.MES");
    QTest::keyClicks(&program.Get<QLineEdit>("Text1"), QStringLiteral("EDIT"));
    program.Choose("mnuSave");
    QVERIFY(Slurp(folder / "TEST.MES").find("EDIT") != std::string::npos);
    QVERIFY(desk_->user.boxes().empty());
  }

  void ListsTheFilesOfItsFolder_data() { AddFolderNames(); }
  void ListsTheFilesOfItsFolder() {
    const fs::path folder = MakeFolder();
    RunningProgram program(folder);
    std::ofstream(folder / "TEST.MES", std::ios::binary) << MesFile().Bytes();
    bool listed = false;
    desk_->user.on_dialog = [&listed](QDialog& dialog) {
      auto* model = dialog.findChild<QFileSystemModel*>();
      listed = model != nullptr && QTest::qWaitFor([model] {
                 const QModelIndex root = model->index(model->rootPath());
                 return model->rowCount(root) == 1 &&
                        model->index(0, 0, root).data().toString() == QStringLiteral("TEST.MES");
               });
    };
    desk_->user.Cancel();
    program.Choose("mnuOpen");
    QVERIFY(listed);
  }

  void SavesUnderANameOfItsFolder_data() { AddFolderNames(); }
  void SavesUnderANameOfItsFolder() {
    const fs::path folder = MakeFolder();
    RunningProgram program(folder);
    std::ofstream(folder / "TEST.MES", std::ios::binary) << MesFile().Bytes();
    Edit(program, "TEST.MES");
    desk_->user.Choose("COPY.MES");
    program.Choose("mnuSaas");
    QVERIFY(fs::exists(folder / "COPY.MES"));
    QVERIFY(program.set().CurrentFileName == folder / "COPY.MES");
  }

  void OpensAFileBelowItsFolder_data() { AddFolderNames(); }
  void OpensAFileBelowItsFolder() {
    const fs::path folder = MakeFolder();
    RunningProgram program(folder);
    fs::create_directory(folder / "below");
    std::ofstream(folder / "below/TEST.MES", std::ios::binary) << MesFile().Bytes();
    desk_->user.Choose("below/TEST.MES");
    program.Choose("mnuOpen");
    QVERIFY(program.set().CurrentFileName == folder / "below/TEST.MES");
  }

  void OpensAFileElsewhere_data() { AddFolderNames(); }
  void OpensAFileElsewhere() {
    RunningProgram program(MakeFolder());
    const fs::path file = desk_->folder.Write("TEST.MES", MesFile().Bytes());
    desk_->user.Choose(file);
    program.Choose("mnuOpen");
    QVERIFY(program.set().CurrentFileName == file);
  }

  void AFolderThatIsMissingHasANameToo_data() { AddFolderNames(); }
  void AFolderThatIsMissingHasANameToo() {
    QFETCH(std::string, name);
    const QtFolder folder(desk_->folder / name);
    QVERIFY(!folder.HasSecondName());
    QVERIFY(!folder.name().isEmpty());
  }

  void OnlyAFolderThatQtCannotNameHasASecondName() {
    const fs::path unicode_path = desk_->folder / "caff\u00E8 %1";
    const fs::path other_path = desk_->folder / "caff\xE8";
    fs::create_directory(unicode_path);
    fs::create_directory(other_path);
    const QtFolder unicode(unicode_path);
    QVERIFY(!unicode.HasSecondName());
    QCOMPARE(unicode.name(), ToQString(desk_->folder.path()) + QStringLiteral("/caff\u00E8 %1"));
    const QtFolder other(other_path);
    QVERIFY(other.HasSecondName());
    QVERIFY(fs::equivalent(ToPath(other.name()), other_path));
    QVERIFY(other.PathOf(other.name() + QStringLiteral("/a/b")) == other_path / "a/b");
    QVERIFY(other.PathOf(QStringLiteral("/a/b")) == "/a/b");
  }

  void KeepsTheUsersSettingsAndEditsInAHomeOfAnyName_data() { AddFolderNames(); }
  void KeepsTheUsersSettingsAndEditsInAHomeOfAnyName() {
    const fs::path home = MakeFolder();
    const Environment set_home("HOME", home.native());
    const Environment no_folder("XDG_CONFIG_HOME", "");
    const fs::path folder = ToPath(QCoreApplication::applicationName());
    QVERIFY(ProgramFolders().user_settings == home / ".config" / folder / "gui_tests.ini");
    const Environment set_folder("XDG_CONFIG_HOME", home.native());
    QVERIFY(ProgramFolders().user_settings == home / folder / "gui_tests.ini");
    const Environment no_data_folder("XDG_DATA_HOME", "");
    QVERIFY(ProgramFolders().journals == home / ".local/share" / folder / "journals");
    const Environment set_data_folder("XDG_DATA_HOME", home.native());
    QVERIFY(ProgramFolders().journals == home / folder / "journals");
  }

  void KeepsTheUsersSettingsWhereOtherProgramsDo() {
    const Environment no_folder("XDG_CONFIG_HOME", "");
    const fs::path expected =
        ToPath(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
    QVERIFY(ProgramFolders().user_settings == expected / "gui_tests.ini");
    const Environment relative_folder("XDG_CONFIG_HOME", "relative");
    QVERIFY(ProgramFolders().user_settings == expected / "gui_tests.ini");
  }

  void FindsItsFontsInItsFolder_data() { AddFolderNames(); }
  void FindsItsFontsInItsFolder() {
    const fs::path folder = MakeFolder();
    fs::copy(VENDLINGUA_FONTS_FOLDER, folder);
    QFontDatabase::removeAllApplicationFonts();
    QCOMPARE(FontMask(QtFontList(folder).Families()), kAllDisplayFonts);
  }

  void DoesWithoutFontsThatCannotBeRead() {
    fs::create_directories(desk_->folder / "LCD.ttf");
    desk_->folder.Write("LCD_CY.ttf", "no font");
    QFontDatabase::removeAllApplicationFonts();
    QCOMPARE(FontMask(QtFontList(desk_->folder.path()).Families()), 0);
  }

  void StartsTheSiblingInItsFolder_data() { AddFolderNames(); }
  void StartsTheSiblingInItsFolder() {
    const fs::path folder = MakeFolder();
    const fs::path script = folder / "MACHCONFIG.EXE";
    std::ofstream(script) << "#!/bin/sh\n: > started\n";
    fs::permissions(script, fs::perms::owner_all);
    QtProgramStarter().Start(script);
    QTRY_VERIFY(fs::exists(folder / "started"));
    QtProgramStarter().Start(folder / "NO SUCH PROGRAM");
  }
};

namespace {
const RegisteredTest kPathsTest("paths_test", RunTest<PathsTest>);
}  // namespace

}  // namespace vendlingua::test

#include "paths_test.moc"
