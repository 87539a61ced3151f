#include <QFileDialog>
#include <QLabel>
#include <QPushButton>

#include "gui/support/desk.h"

namespace vendlingua::test {

class FilesTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<Desk> desk_;

  QString UiText(std::size_t number) {
    return QString::fromStdString(desk_->program.workspace().ui_text[number]);
  }

  QString Caption(const char* entry) { return desk_->program.Entry(entry).text(); }

  // Opens a file that cannot be taken: one box says so, and everything is as it was.
  void ExpectRefused(std::string_view name, std::string_view content) {
    desk_->Edit(MesFile());
    desk_->HScroll1().setValue(1);
    const auto path = desk_->Open(name, content);
    QCOMPARE(desk_->user.boxes().size(), std::size_t{1});
    const DialogAnswerer::Box& box = desk_->user.boxes().front();
    QCOMPARE(box.title, QStringLiteral("ERROR"));
    QCOMPARE(box.icon, QMessageBox::Critical);
    QVERIFY2(box.text.contains(QString::fromStdString(path.filename().string())),
             qPrintable(box.text));
    QCOMPARE(Slurp(path), std::string(content));
    QCOMPARE(desk_->program.window().windowTitle(), QStringLiteral("TEST.MES"));
    QCOMPARE(desk_->view().Label6, 1);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("1111"));
    QVERIFY(desk_->program.Entry("mnuSave").isEnabled());
  }

 private slots:
  void init() { desk_ = std::make_unique<Desk>(); }

  void cleanup() {
    const QStringList surprises = desk_->user.Surprises();
    desk_.reset();
    QCOMPARE(surprises, QStringList());
  }

  void OpensAMesFile() {
    desk_->Open("A.MES", MesFile().Bytes());
    QCOMPARE(desk_->program.window().windowTitle(), QStringLiteral("A.MES"));
    QVERIFY(desk_->program.Entry("mnuOrig").isEnabled());
    QVERIFY(desk_->program.Entry("mnuMake").isEnabled());
    QVERIFY(!desk_->program.Entry("mnuSave").isEnabled());
    for (const char* entry : {"mnuori(0)", "mnuDes(0)", "mnuNew(0)"}) {
      QCOMPARE(Caption(entry), QStringLiteral("Default"));
    }
    QCOMPARE(Caption("mnuDes(1)"), QStringLiteral("ITALIANO"));
    QVERIFY(!desk_->program.Entry("mnuori(2)").isVisible());
    QVERIFY(!desk_->program.Entry("mnuDes(0)").icon().isNull());
  }

  void AsksForMessageFilesInTheProgramsFolder() {
    desk_->Open("A.MES", MesFile().Bytes());
    const DialogAnswerer::FileQuestion& question = desk_->user.files().front();
    QVERIFY(!question.save);
    QCOMPARE(question.folder, QString::fromStdString((desk_->folder / "bin").string()));
    QCOMPARE(question.name_filters, QStringList({QStringLiteral("Message (*.MES *.mes)"),
                                                 QStringLiteral("Message (*.MSX *.msx)")}));
  }

  void ACancelledOpenLeavesEverything() {
    desk_->Edit(MesFile());
    desk_->user.Cancel();
    desk_->program.Choose("mnuOpen");
    QCOMPARE(desk_->program.window().windowTitle(), QStringLiteral("TEST.MES"));
    QVERIFY(desk_->Text1().isEnabled());
  }

  void ShowsAnAmpersandOfANameAsItIs() {
    MesFile mes;
    mes.names = {"Default", "A&B"};
    desk_->Open("A.MES", mes.Bytes());
    QCOMPARE(Caption("mnuDes(1)"), QStringLiteral("A&&B"));
  }

  void RefusesAMsxFileOfAnotherFirmware() {
    desk_->Open("A.MSX", MsxFile(2, "0418"));
    const DialogAnswerer::Box& box = desk_->user.boxes().front();
    QCOMPARE(box.text, QStringLiteral(" File not managed ! "));
    QCOMPARE(box.title, QStringLiteral("ERROR"));
    QCOMPARE(box.icon, QMessageBox::Critical);
    QVERIFY(!desk_->program.Entry("mnuOrig").isEnabled());
  }

  void RefusesAnEmptyFile() { ExpectRefused("EMPTY.MES", ""); }

  void RefusesAFileThatEndsInItsHeader() { ExpectRefused("SHORT.MES", "\x02\x03"); }

  void RefusesAFileWithoutLanguages() {
    MesFile mes;
    mes.lang_count = 0;
    ExpectRefused("NONE.MES", mes.Bytes());
  }

  void AsksAboutUnsavedChangesBeforeItOpens() {
    const auto first = desk_->Edit(MesFile());
    desk_->Type("NEW");
    desk_->user.Yes();
    desk_->Open("B.MES", MesFile().Bytes());
    QCOMPARE(desk_->user.boxes().front().text, UiText(43));
    QCOMPARE(desk_->user.boxes().front().title, UiText(42));
    QVERIFY(Slurp(first).find("NEW ") != std::string::npos);
    QCOMPARE(desk_->program.window().windowTitle(), QStringLiteral("B.MES"));
  }

  void SavesTheMessageThatIsShown() {
    const auto path = desk_->Edit(MesFile());
    desk_->Type("EDIT");
    desk_->program.Choose("mnuSave");
    const MesFile mes;
    QCOMPARE(Slurp(path).substr(24 + mes.BlockLength() + 20, 8), std::string("EDIT1111"));
    QVERIFY(!desk_->Modified());
    QVERIFY(desk_->program.Get<QLabel>("Status").toolTip().startsWith(UiText(54)));
  }

  void SavesAsACopyOfTheWholeFile() {
    const auto path = desk_->Edit(MesFile());
    desk_->Type("EDIT");
    desk_->user.Choose(desk_->folder / "COPY.MES");
    desk_->program.Choose("mnuSaas");
    QCOMPARE(desk_->program.window().windowTitle(), QStringLiteral("COPY.MES"));
    QCOMPARE(Slurp(path), MesFile().Bytes());
    QCOMPARE(Slurp(desk_->folder / "COPY.MES").size(), MesFile().Bytes().size());
    QVERIFY(Slurp(desk_->folder / "COPY.MES").find("EDIT") != std::string::npos);
    QCOMPARE(desk_->user.files().back().suffix, QStringLiteral("MES"));
    QVERIFY(desk_->user.files().back().asks_before_overwriting);
  }

  void TheNameThatStandsInASaveDialogAtFirstIsNoChoice() {
    desk_->Edit(MesFile());
    desk_->user.Accept();
    desk_->program.Choose("mnuSaas");
    QCOMPARE(desk_->program.window().windowTitle(), QStringLiteral("TEST.MES"));
    QCOMPARE(desk_->folder.Names(), std::string("TEST.MES bin"));
  }

  void KeepsTheEditsWhenTheFileIsGone() {
    const auto path = desk_->Edit(MesFile());
    desk_->Type("EDIT");
    std::filesystem::remove(path);
    desk_->program.Choose("mnuSave");
    QVERIFY(desk_->program.Get<QLabel>("Status").toolTip().startsWith(UiText(55)));
    QCOMPARE(desk_->Text1().text(), QStringLiteral("EDIT"));
  }

  void SaysThatTheFolderIsGone() {
    const auto folder = desk_->folder / "stick";
    std::filesystem::create_directory(folder);
    desk_->Edit(MesFile());
    desk_->user.Choose(folder / "A.MES");
    desk_->program.Choose("mnuSaas");
    std::filesystem::remove_all(folder);
    desk_->Type("EDIT");
    desk_->program.Choose("mnuSave");
    QCOMPARE(desk_->user.boxes().back().text, QStringLiteral(" Directory not ready"));
    QCOMPARE(desk_->user.boxes().back().icon, QMessageBox::Critical);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("EDIT"));
  }

  void NamesANewLanguageUntilItHasAName() {
    const auto path = desk_->Edit(MesFile());
    desk_->program.Choose("mnuNew(1)");
    desk_->Type("NEU");
    desk_->user.Cancel();
    desk_->user.Type(QStringLiteral("  "));
    desk_->user.Type(QStringLiteral("italiano"));
    desk_->user.Type(QStringLiteral("deutsch\u00E8"));
    desk_->program.Choose("mnuSave");
    QCOMPARE(desk_->user.inputs().size(), std::size_t{4});
    QCOMPARE(desk_->user.inputs().front().prompt, UiText(45));
    QCOMPARE(desk_->user.inputs().front().title, UiText(46));
    QCOMPARE(desk_->user.boxes().size(), std::size_t{3});
    QCOMPARE(desk_->user.boxes().at(1).text, UiText(32));
    QCOMPARE(desk_->user.boxes().at(2).text,
             UiText(34) + QStringLiteral("\nITALIANO            \n") + UiText(35));
    QCOMPARE(desk_->user.boxes().at(2).icon, QMessageBox::Warning);
    QCOMPARE(Caption("mnuDes(2)"), QStringLiteral("DEUTSCH\u00C8"));
    QVERIFY(Slurp(path).find("DEUTSCH\xC8            NEU ") != std::string::npos);
  }

  void ImportsAnAssemblerSource() {
    const auto path = desk_->folder.Write("SOURCE.MES", " DC.B 'ABCD'\r\n DC.B 'EFGH'\r\n");
    desk_->user.Choose(path);
    for (const char* answer : {"1", "1", "&H6000", "&H2000", "Italiano"}) {
      desk_->user.Type(QLatin1String(answer));
    }
    desk_->user.Choose(desk_->folder / "NEW.MES");
    desk_->program.Choose("mnuOpen");
    QCOMPARE(desk_->user.inputs().front().title, QStringLiteral("Configura"));
    QCOMPARE(desk_->user.inputs().at(2).default_answer, QStringLiteral("&H6000"));
    QCOMPARE(desk_->program.window().windowTitle(), QStringLiteral("NEW.MES"));
    QCOMPARE(Caption("mnuDes(1)"), QStringLiteral("ITALIANO"));
    desk_->program.Choose("mnuori(1)");
    QCOMPARE(desk_->program.Get<QLabel>("Label5(3)").text(), QStringLiteral("D"));
  }

  void ACancelledSaveEndsAnImportWithoutAFile() {
    const auto path = desk_->folder.Write("SOURCE.MES", " DC.B 'ABCD'\r\n DC.B 'EFGH'\r\n");
    desk_->user.Choose(path);
    for (const char* answer : {"1", "1", "&H6000", "&H2000", "Italiano"}) {
      desk_->user.Type(QLatin1String(answer));
    }
    desk_->user.Cancel();
    desk_->program.Choose("mnuOpen");
    QCOMPARE(desk_->program.Get<QLabel>("Status").toolTip(), UiText(56));
    QVERIFY(desk_->program.set().CurrentFileName.empty());
    QVERIFY(!desk_->program.Entry("mnuOrig").isEnabled());
  }

  void SaysThatTheMessagesDoNotFitTheMemory() {
    const auto path = desk_->folder.Write("SOURCE.MES", " DC.B 'ABCD'\r\n DC.B 'EFGH'\r\n");
    desk_->user.Choose(path);
    for (const char* answer : {"2", "1", "&H6000", "15"}) {
      desk_->user.Type(QLatin1String(answer));
    }
    desk_->program.Choose("mnuOpen");
    const DialogAnswerer::Box& box = desk_->user.boxes().back();
    QCOMPARE(box.title, QStringLiteral("ERRORE"));
    QCOMPARE(box.text, QStringLiteral("Memoria messaggi\ninsufficente\nMessaggi N\u00B0 2\n"
                                      "Memoria usata 16"));
  }
};

}  // namespace vendlingua::test

int main(int argc, char** argv) {
  return vendlingua::test::RunTest<vendlingua::test::FilesTest>(argc, argv);
}

#include "files_test.moc"
