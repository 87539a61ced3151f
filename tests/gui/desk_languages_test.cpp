#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTreeWidget>

#include "desktop/qt_path.h"
#include "gui/support/browser.h"
#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

/// What is done with whole languages at the desk.
class DeskLanguagesTest : public DeskTest {
  Q_OBJECT

 private:
  template <typename Control>
  Control& Part(const char* name) {
    return desk_->program.GetInDesk<Control>(name);
  }
  QTreeWidget& Languages() { return Part<QTreeWidget>("DeskLanguages"); }
  void Click(const char* button) { Part<QPushButton>(button).click(); }

  std::string Content() {
    MesFile mes;
    mes.names = {"Default", "ITALIANO", "ENGLISH", "SUOMI"};
    return Lettered(mes.Bytes());
  }

  // The same with another text in ENGLISH.
  std::string OtherContent() {
    std::string content = Content();
    return content.replace(content.rfind("CBBB"), 4, "TEA ");
  }

  // ENGLISH is chosen in the list, SUOMI is open.
  void OpenDesk(const std::string& content) {
    desk_->Open("TEST.MES", content);
    desk_->program.Choose("mnuori(1)");
    desk_->program.Choose("mnuDes(3)");
    desk_->program.Choose("mnuDesk");
    QVERIFY(QTest::qWaitForWindowActive(&desk_->program.desk()));
    Part<QTabWidget>("DeskPages").setCurrentIndex(2);
    Languages().setCurrentItem(Languages().topLevelItem(1));
  }
  void OpenDesk() { OpenDesk(Content()); }

  std::filesystem::path Exported(const char* name) {
    const std::filesystem::path file = desk_->folder / name;
    desk_->user.Choose(file);
    Click("DeskLanguageExport");
    return file;
  }

 private slots:
  void CountsFindingsALanguage() {
    std::string content = Content();
    OpenDesk(content.replace(content.rfind("CBBB"), 4, "CB\xFE "));
    const int english = Languages().topLevelItem(1)->text(2).toInt();
    const int suomi = Languages().topLevelItem(2)->text(2).toInt();
    QCOMPARE(english, suomi + 1);
    QCOMPARE(Languages().topLevelItem(0)->text(2), QString());
  }

  void ComparesWithAnotherFile() {
    OpenDesk();
    desk_->user.on_dialog = [](QDialog& dialog) {
      if (const auto* table = dialog.findChild<QTableWidget*>()) {
        QCOMPARE(table->rowCount(), 1);
        QCOMPARE(table->item(0, 1)->text(), QStringLiteral("CBBB"));
        QCOMPARE(table->item(0, 2)->text(), QStringLiteral("TEA "));
      }
    };
    desk_->user.Choose(desk_->folder.Write("OTHER.MES", OtherContent()));
    desk_->user.Accept();
    Click("DeskLanguageCompare");
    QCOMPARE(desk_->Stored(1), std::string("TEA "));
    QCOMPARE(desk_->program.set().DestLang, std::uint8_t{2});
    desk_->program.Choose("mnuUndo");
    QCOMPARE(desk_->Stored(1), std::string("CBBB"));
  }

  void SaysThatAnotherFileIsTheSame() {
    OpenDesk();
    desk_->user.Choose(desk_->folder.Write("OTHER.MES", Content()));
    Click("DeskLanguageCompare");
    QCOMPARE(Status(), Say(UiSentence(UiTextId::kSameTexts, "OTHER.MES")));
    QCOMPARE(desk_->program.set().DestLang, std::uint8_t{3});
  }

  void SaysThatAnotherFileLacksTheLanguage() {
    OpenDesk();
    desk_->user.Choose(desk_->folder.Write("OTHER.MES", MesFile().Bytes()));
    Click("DeskLanguageCompare");
    QCOMPARE(Status(), Say(UiSentence(UiTextId::kLanguageNotThere, "OTHER.MES", "ENGLISH")));
  }

  void AFileThatIsNoneIsRefused() {
    OpenDesk();
    desk_->user.Choose(desk_->folder.Write("OTHER.MES", "no messages"));
    Click("DeskLanguageCompare");
    QVERIFY(desk_->user.LastBox().text.contains(QStringLiteral("OTHER.MES")));
  }

  void TheProofSheetOpensInTheBrowser() {
    const Browser browser;
    qputenv("XDG_CACHE_HOME", ToQString(desk_->folder / "cache").toLocal8Bit());
    OpenDesk();
    Click("DeskLanguageProof");
    const std::string html = Slurp(ToPath(browser.opened.toLocalFile()));
    QVERIFY(html.find("ENGLISH") != std::string::npos);
    QVERIFY(html.find("TEST.MES") != std::string::npos);
  }

  void ExportsCsvAndXliffByTheirNames() {
    OpenDesk();
    const std::string csv = Slurp(Exported("en.csv"));
    QVERIFY(csv.find("CBBB") != std::string::npos && csv.find("<xliff") == std::string::npos);
    QVERIFY(Slurp(Exported("en.xliff")).find("<xliff") != std::string::npos);
  }

  void ExportsWhatIsBeingEdited() {
    OpenDesk();
    Languages().setCurrentItem(Languages().topLevelItem(2));
    desk_->Type("NEW");
    QVERIFY(Slurp(Exported("fi.csv")).find("NEW") != std::string::npos);
    desk_->program.Choose("mnuUndo");
  }

  void ImportsAfterAPreview() {
    OpenDesk();
    std::string table = Slurp(Exported("en.csv"));
    table.replace(table.find("CBBB"), 4, "TEA ");
    desk_->user.Choose(desk_->folder.Write("back.csv", table));
    desk_->user.Accept();
    Click("DeskLanguageImport");
    QCOMPARE(desk_->program.set().DestLang, std::uint8_t{2});
    QCOMPARE(desk_->Stored(1), std::string("TEA "));
    desk_->program.Choose("mnuUndo");
    QCOMPARE(desk_->Stored(1), std::string("CBBB"));
  }

  void AnImportThatIsCancelledChangesNothing() {
    OpenDesk();
    std::string table = Slurp(Exported("en.csv"));
    table.replace(table.find("CBBB"), 4, "TEA ");
    desk_->user.Choose(desk_->folder.Write("back.csv", table));
    desk_->user.Cancel();
    Click("DeskLanguageImport");
    QCOMPARE(desk_->Stored(1), std::string("CBBB"));
  }

  void SaysThatATableChangesNothing() {
    OpenDesk();
    const auto table = Exported("en.xliff");
    desk_->user.Choose(table);
    Click("DeskLanguageImport");
    QCOMPARE(Status(), Say(UiSentence(UiTextId::kNothingChanges, "en.xliff")));
  }

  void ATableWithErrorsIsRefused() {
    OpenDesk();
    std::string table = Slurp(Exported("en.csv"));
    table.replace(table.find("CBBB"), 4, "much too long");
    desk_->user.Choose(desk_->folder.Write("back.csv", table));
    Click("DeskLanguageImport");
    QVERIFY2(desk_->user.LastBox().text.contains(QStringLiteral("back.csv")),
             qPrintable(desk_->user.LastBox().text));
    QCOMPARE(desk_->Stored(1), std::string("CBBB"));
  }
};

namespace {
const RegisteredTest kDeskLanguagesTest("desk_languages_test", RunTest<DeskLanguagesTest>);
}  // namespace

}  // namespace vendlingua::test

#include "desk_languages_test.moc"
