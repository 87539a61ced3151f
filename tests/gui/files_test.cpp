#include <QFileDialog>
#include <QLabel>
#include <QPushButton>

#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

class FilesTest : public DeskTest {
  Q_OBJECT

 private:
  QString Caption(const char* entry) { return desk_->program.Entry(entry).text(); }

 private slots:
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
    QCOMPARE(question.name_filters,
             QStringList({QStringLiteral("Message (*.MES)"), QStringLiteral("Message (*.MSX)")}));
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

  void AsksAboutUnsavedChangesBeforeItOpens() {
    const auto first = desk_->Edit(MesFile());
    desk_->Type("NEW");
    desk_->user.Yes();
    desk_->Open("B.MES", MesFile().Bytes());
    QCOMPARE(desk_->user.FirstBox().text, UiText(43));
    QCOMPARE(desk_->user.FirstBox().title, UiText(42));
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
    QVERIFY(Status().startsWith(UiText(54)));
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

  void ImportsAnAssemblerSource_data() {
    QTest::addColumn<std::string>("source");
    QTest::newRow("CR LF") << std::string(" DC.B 'ABCD'\r\n DC.B 'EFGH'\r\n");
    QTest::newRow("LF") << std::string(" DC.B 'ABCD'\n DC.B 'EFGH'\n");
    QTest::newRow("no last line end") << std::string(" DC.B 'ABCD'\r\n DC.B 'EFGH'");
  }
  void ImportsAnAssemblerSource() {
    QFETCH(std::string, source);
    const auto path = desk_->folder.Write("SOURCE.MES", source);
    desk_->user.Choose(path);
    for (const char* answer : {"1", "1", "&H6000", "&H2000", "Italiano"}) {
      desk_->user.Type(QLatin1String(answer));
    }
    desk_->user.Choose(desk_->folder / "NEW.MES");
    desk_->program.Choose("mnuOpen");
    QCOMPARE(desk_->user.inputs().size(), std::size_t{5});
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
    QCOMPARE(Status(), UiText(56));
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
    const DialogAnswerer::Box box = desk_->user.LastBox();
    QCOMPARE(box.title, QStringLiteral("ERRORE"));
    QCOMPARE(box.text, QStringLiteral("Memoria messaggi\ninsufficente\nMessaggi N\u00B0 2\n"
                                      "Memoria usata 16"));
  }
};

namespace {
const RegisteredTest kFilesTest("files_test", RunTest<FilesTest>);
}  // namespace

}  // namespace vendlingua::test

#include "files_test.moc"
