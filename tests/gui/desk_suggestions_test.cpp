#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>

#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

/// Translations of same and similar texts beside the desk's table, in the sample file: from Italian
/// into German.
class DeskSuggestionsTest : public DeskTest {
  Q_OBJECT

 private:
  static constexpr std::size_t kDiagnostics = 2;  // "Diagnosi", once in the file

  template <typename Control>
  Control& Part(const char* name) {
    return desk_->program.GetInDesk<Control>(name);
  }
  QListWidget& Suggestions() { return Part<QListWidget>("DeskSuggestions"); }
  QTableView& Table() { return Part<QTableView>("DeskTable"); }
  QString DeskStatus() { return Part<QLabel>("DeskStatus").text(); }

  std::filesystem::path Sample(const char* name) {
    const std::filesystem::path copy = desk_->folder / name;
    std::filesystem::copy_file(std::filesystem::path(VENDLINGUA_SAMPLES_FOLDER) / name, copy);
    return copy;
  }

  // The samples lie beside the program.
  void InstallSamples() {
    const std::filesystem::path folder = desk_->folder / "bin" / "samples";
    std::filesystem::create_directory(folder);
    std::filesystem::copy_file(std::filesystem::path(VENDLINGUA_SAMPLES_FOLDER) / "FW0417AB.MES",
                               folder / "FW0417AB.MES");
  }

  // The German of a file.
  void OpenDesk() {
    desk_->Open(Sample("FW0267AA.MES"));
    desk_->program.Choose("mnuori(1)");
    desk_->program.Choose("mnuDes(3)");
    desk_->program.Choose("mnuDesk");
    QVERIFY(QTest::qWaitForWindowActive(&desk_->program.desk()));
    Part<QTabWidget>("DeskPages").setCurrentIndex(0);
  }

  void Empty(std::size_t message) {
    desk_->HScroll1().setValue(static_cast<int>(message));
    desk_->Text1().clear();
    QTest::keyClicks(&desk_->Text1(), QStringLiteral(" "));
  }

  void ChooseMemoryFile(const std::filesystem::path& path) {
    desk_->user.Choose(path);
    auto& menu = Part<QMenu>("DeskMemoryMenu");
    emit menu.aboutToShow();
    menu.actions().front()->trigger();
  }

  // Presses the button that shows what would be filled in, and accepts or leaves it. In between
  // `look` sees the table.
  void Pretranslate(bool accept, const std::function<void(QTableWidget&)>& look) {
    desk_->user.on_dialog = [&](QDialog& dialog) { look(*dialog.findChild<QTableWidget*>()); };
    if (accept) {
      desk_->user.Accept();
    } else {
      desk_->user.Cancel();
    }
    Part<QPushButton>("DeskPretranslate").click();
    desk_->user.on_dialog = nullptr;
  }

 private slots:
  void SaysWhenThereIsNone() {
    OpenDesk();
    QVERIFY(!Suggestions().isVisible());
    QCOMPARE(Part<QLabel>("DeskNoSuggestions").text(), UiText(UiTextId::kNoSuggestions));
  }

  void SuggestsWhatTheSamplesSay() {
    InstallSamples();
    OpenDesk();
    Empty(kDiagnostics);
    QVERIFY(Suggestions().isVisible());
    const QString first = Suggestions().item(0)->text();
    QVERIFY2(first.startsWith(QStringLiteral("Diagnose, Diagnosi, 100 %, ")), qPrintable(first));
    QVERIFY(first.contains(UiText(UiTextId::kSamples)));
  }

  void AKeyTakesOneLaidOut() {
    InstallSamples();
    OpenDesk();
    const std::string before = desk_->Stored(kDiagnostics);
    Empty(kDiagnostics);
    QTest::keyClick(&Table(), Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(desk_->Stored(kDiagnostics), before);
    QCOMPARE(desk_->Text1().text().trimmed(), QStringLiteral("Diagnose"));
    desk_->program.Choose("mnuUndo");
    QCOMPARE(desk_->Stored(kDiagnostics), std::string(16, ' '));
  }

  void ADoubleClickTakesOne() {
    InstallSamples();
    OpenDesk();
    const std::string before = desk_->Stored(kDiagnostics);
    Empty(kDiagnostics);
    const QPoint place = Suggestions().visualItemRect(Suggestions().item(0)).center();
    QTest::mouseClick(Suggestions().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(Suggestions().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(desk_->Stored(kDiagnostics), before);
  }

  void AKeyShowsThePageFirst() {
    InstallSamples();
    OpenDesk();
    Empty(kDiagnostics);
    Part<QTabWidget>("DeskPages").setCurrentIndex(1);
    QTest::keyClick(&Table(), Qt::Key_1, Qt::ControlModifier);
    QVERIFY(Suggestions().isVisible());
    QCOMPARE(desk_->Stored(kDiagnostics), std::string(16, ' '));
  }

  void AKeyWithoutASuggestionDoesNothing() {
    OpenDesk();
    Empty(kDiagnostics);
    QTest::keyClick(&Table(), Qt::Key_9, Qt::ControlModifier);
    QCOMPARE(desk_->Stored(kDiagnostics), std::string(16, ' '));
  }

  void AFileIsChosenOnceAsMemory() {
    OpenDesk();
    Empty(kDiagnostics);
    ChooseMemoryFile(Sample("FW0417AB.MES"));
    QCOMPARE(DeskStatus(), Say(UiSentence(UiTextId::kMemoryAdded, "FW0417AB.MES")));
    QVERIFY(Suggestions().item(0)->text().contains(QStringLiteral("FW0417AB.MES: 2")));
    desk_->program.desk().close();
    desk_->program.Choose("mnuDesk");
    QVERIFY(Suggestions().item(0)->text().contains(QStringLiteral("FW0417AB.MES: 2")));
    auto& menu = Part<QMenu>("DeskMemoryMenu");
    emit menu.aboutToShow();
    QCOMPARE(menu.actions().back()->text(),
             Say(UiSentence(UiTextId::kRemoveMemory, "FW0417AB.MES")));
    menu.actions().back()->trigger();
    QVERIFY(!Suggestions().isVisible());
    desk_->program.desk().close();
  }

  void AFileThatIsNoneIsRefused() {
    OpenDesk();
    ChooseMemoryFile(desk_->folder.Write("BAD.MES", "x"));
    QCOMPARE(desk_->user.boxes().size(), std::size_t{1});
    auto& menu = Part<QMenu>("DeskMemoryMenu");
    emit menu.aboutToShow();
    QCOMPARE(menu.actions().size(), 2);  // the entry that adds one, and a line below it
  }

  void AMemoryFileThatIsGoneIsNamed() {
    OpenDesk();
    const auto file = desk_->folder / "MEMORY.MES";
    std::filesystem::copy_file(Sample("FW0417AB.MES"), file);
    ChooseMemoryFile(file);
    auto& told = Part<QLabel>("DeskUnreadableMemory");
    QVERIFY(!told.isVisible());
    std::filesystem::remove(file);
    desk_->program.Choose("mnuDes(2)");
    QVERIFY(told.isVisible());
    QCOMPARE(told.text(), Say(UiSentence(UiTextId::kUnreadableMemory, "MEMORY.MES")));
    auto& menu = Part<QMenu>("DeskMemoryMenu");
    emit menu.aboutToShow();
    menu.actions().back()->trigger();
    QVERIFY(!told.isVisible());
    desk_->program.desk().close();
  }

  void PretranslatesAfterAPreviewInOneStep() {
    InstallSamples();
    OpenDesk();
    const std::string second = desk_->Stored(2);
    Empty(2);
    Empty(5);
    Pretranslate(true, [](QTableWidget& table) {
      QCOMPARE(table.rowCount(), 2);
      QCOMPARE(table.item(0, 0)->text(), QStringLiteral("2"));
      QCOMPARE(table.item(1, 0)->text(), QStringLiteral("5"));
      table.item(1, 0)->setCheckState(Qt::Unchecked);
    });
    QCOMPARE(desk_->Stored(2), second);
    QCOMPARE(desk_->Stored(5), std::string(16, ' '));
    desk_->program.Choose("mnuUndo");
    QCOMPARE(desk_->Stored(2), std::string(16, ' '));
  }

  void PretranslatesNothingUnlessItIsAskedTo() {
    InstallSamples();
    OpenDesk();
    Empty(2);
    Pretranslate(false, [](QTableWidget& table) { QCOMPARE(table.rowCount(), 1); });
    QCOMPARE(desk_->Stored(2), std::string(16, ' '));
  }
};

namespace {
const RegisteredTest kDeskSuggestionsTest("desk_suggestions_test", RunTest<DeskSuggestionsTest>);
}  // namespace

}  // namespace vendlingua::test

#include "desk_suggestions_test.moc"
