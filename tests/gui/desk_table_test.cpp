#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QTableView>

#include "desktop/desk/word_delegate.h"
#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {
namespace {

constexpr int kState = 4;

// Tells what is drawn.
class OpenWordDelegate : public WordDelegate {
 public:
  using WordDelegate::initStyleOption;
};

}  // namespace

/// The desk's table, by the keyboard and beside the main window. Messages have four cells; in
/// message 2 the board fills the second one.
class DeskTableTest : public DeskTest {
  Q_OBJECT

 private:
  QTableView& Table() { return desk_->program.GetInDesk<QTableView>("DeskTable"); }

  void OpenDesk() {
    MesFile mes;
    mes.names = {"Default", "ITALIANO", "ENGLISH"};
    std::string content = mes.Bytes();
    for (const std::size_t language : {0U, 1U, 2U}) {
      const std::string text = mes.Message(language, 2);
      content.replace(content.find(text), text.size(), text.substr(0, 1) + "\xFE" + text.substr(2));
    }
    OpenAtDesk(Lettered(content));
  }

  QString Shown(int row, int column) {
    return Table().model()->index(row, column).data().toString();
  }

  // Keys go to the edit box of the row while there is one.
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(EditOrTable(), key, modifiers);
  }
  void Type(const char* text) {
    for (const char* character = text; *character != '\0'; ++character) {
      QTest::keyClick(EditOrTable(), *character);
    }
  }
  QWidget* EditOrTable() {
    QWidget* edit = Edit();
    return edit != nullptr ? edit : &Table();
  }
  QLineEdit* Edit() { return Table().findChild<QLineEdit*>(QStringLiteral("DeskEdit")); }

  QString DeskStatus() { return desk_->program.GetInDesk<QLabel>("DeskStatus").text(); }

 private slots:
  void ShowsEveryMessage() {
    OpenDesk();
    QCOMPARE(Table().model()->rowCount(), 3);
    QCOMPARE(Shown(1, 0), QStringLiteral("1"));
    QCOMPARE(Shown(1, 1), QStringLiteral("BBBB"));
    QCOMPARE(Shown(1, 2), QStringLiteral("CBBB"));
    QCOMPARE(Shown(1, 3), QStringLiteral("4/4"));
    QCOMPARE(Shown(1, 4), UiText(UiTextId::kDone));
  }

  void IsEmptyWithoutAFile() {
    desk_->program.Choose("mnuDesk");
    QCOMPARE(Table().model()->rowCount(), 0);
    OpenDesk();
    QCOMPARE(Table().model()->rowCount(), 3);
  }

  void ItsCurrentRowIsTheMessageOfTheMainWindow() {
    OpenDesk();
    QCOMPARE(Table().currentIndex().row(), 0);
    desk_->HScroll1().setValue(2);
    QCOMPARE(Table().currentIndex().row(), 2);
    Press(Qt::Key_Up);
    QCOMPARE(desk_->view().Label6, 1);
    QCOMPARE(desk_->HScroll1().value(), 1);
  }

  void TypingEditsTheMessageInBothWindows() {
    OpenDesk();
    Press(Qt::Key_Down);
    Type("TEA");
    QCOMPARE(desk_->Text1().text(), QStringLiteral("TEA"));
    QCOMPARE(desk_->Stored(1), std::string("TEA "));
    QCOMPARE(Shown(1, 3), QStringLiteral("3/4"));
    QCOMPARE(Shown(1, 4), UiText(UiTextId::kChanged));
  }

  void WhatTheMainWindowEditsShowsInTheRow() {
    OpenDesk();
    desk_->Type("MILK");
    QCOMPARE(Shown(0, 2), QStringLiteral("MILK"));
  }

  void EnterGoesDown() {
    OpenDesk();
    Type("A");
    Press(Qt::Key_Return);
    QVERIFY(Edit() == nullptr || !Edit()->isVisible());
    QCOMPARE(Table().currentIndex().row(), 1);
    Press(Qt::Key_Return);
    QCOMPARE(Table().currentIndex().row(), 2);
    Press(Qt::Key_Return);
    QCOMPARE(Table().currentIndex().row(), 2);
  }

  void ControlEnterGoesToTheNextThatIsToDo() {
    OpenDesk();
    desk_->HScroll1().setValue(2);
    desk_->Type(" ");
    desk_->HScroll1().setValue(0);
    Press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(Table().currentIndex().row(), 2);
    QCOMPARE(Shown(2, 4), UiText(UiTextId::kToDo));
  }

  void TheCaretJumpsOverTheBoardsCells() {
    OpenDesk();
    desk_->HScroll1().setValue(2);
    Type("ABC");
    QCOMPARE(desk_->Stored(2), std::string("A\xFE") + "BC");
    QCOMPARE(Edit()->text(), QStringLiteral("A\u00FEBC"));
    for (int i = 0; i < 4; ++i) {
      Press(Qt::Key_Backspace);
    }
    QCOMPARE(desk_->Stored(2), std::string(" \xFE  "));
  }

  void SaysWhenThereIsNoRoom() {
    OpenDesk();
    Type("ABCDE");
    QCOMPARE(desk_->Stored(0), std::string("ABCD"));
    QCOMPARE(DeskStatus(), UiText(UiTextId::kNoRoomInCells));
  }

  void InsertSwitchesOverwriting() {
    OpenDesk();
    Press(Qt::Key_F2);
    Press(Qt::Key_Home);
    Press(Qt::Key_Insert);
    QCOMPARE(DeskStatus(), UiText(UiTextId::kOverwriting));
    Type("X");
    QCOMPARE(desk_->Stored(0), std::string("XAAA"));
    Press(Qt::Key_Insert);
    QCOMPARE(DeskStatus(), UiText(UiTextId::kInserting));
    Type("Y");
    QCOMPARE(desk_->Stored(0), std::string("XAAA"));
  }

  void ACharacterThatTheDisplayLacksIsRefused() {
    OpenDesk();
    Press(Qt::Key_F2);
    QTest::sendKeyEvent(QTest::Click, Edit(), Qt::Key_unknown, QStringLiteral("\u0416"),
                        Qt::NoModifier);
    QApplication::processEvents();
    QCOMPARE(desk_->Stored(0), std::string("CAAA"));
    QCOMPARE(DeskStatus(), UiText(UiTextId::kCharacterRefused) + QStringLiteral(" \u0416"));
  }

  void EscapeBringsTheTextBack() {
    OpenDesk();
    Type("AB");
    Press(Qt::Key_Escape);
    QCOMPARE(desk_->Stored(0), std::string("CAAA"));
    QCOMPARE(Shown(0, 2), QStringLiteral("CAAA"));
  }

  void TakesBackByTheKeysOfTheDocument() {
    OpenDesk();
    Type("AB");
    Press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(desk_->Stored(0), std::string("CAAA"));
    Press(Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(desk_->Stored(0), std::string("AB  "));
  }

  void SavesByTheKeyOfTheMenu() {
    OpenDesk();
    Type("AB");
    Press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!desk_->Modified());
    QVERIFY(DeskStatus().startsWith(UiText(UiTextId::kSaved)));
  }

  void SortsByAColumn() {
    OpenDesk();
    desk_->HScroll1().setValue(1);
    Table().sortByColumn(0, Qt::DescendingOrder);
    QCOMPARE(Shown(0, 0), QStringLiteral("2"));
    QCOMPARE(Table().currentIndex().row(), 1);
    QCOMPARE(desk_->view().Label6, 1);
  }

  void NothingIsEditedWithoutADestination() {
    desk_->Open("TEST.MES", MesFile().Bytes());
    desk_->program.Choose("mnuori(1)");
    desk_->program.Choose("mnuDesk");
    Type("A");
    QVERIFY(Edit() == nullptr);
    QVERIFY(!desk_->Modified());
    QCOMPARE(Shown(0, 2), QString());
  }

  void ClosesWithTheMainWindow() {
    OpenDesk();
    desk_->program.window().close();
    QVERIFY(!desk_->program.desk().isVisible());
  }

  void SpeaksTheInterfaceLanguage() {
    OpenDesk();
    desk_->program.Choose("smnuLingue(2)");
    QCOMPARE(desk_->program.desk().windowTitle(), QStringLiteral("Translator's desk"));
    QCOMPARE(Table().model()->headerData(4, Qt::Horizontal).toString(), QStringLiteral("State"));
  }

  void StatesStandWholeInEveryLanguage_data() { AddEntriesOfLanguages(); }
  void StatesStandWholeInEveryLanguage() {
    QFETCH(QByteArray, entry);
    OpenDesk();
    desk_->program.Choose(entry == "smnuLingue(0)" ? "smnuLingue(1)" : "smnuLingue(0)");
    Table().setColumnWidth(kState, 20);
    desk_->program.Choose(entry.constData());
    for (const UiTextId word :
         {UiTextId::kFinding, UiTextId::kToDo, UiTextId::kChanged, UiTextId::kDone}) {
      const int letters = Table().fontMetrics().horizontalAdvance(UiText(word));
      QVERIFY2(Table().columnWidth(kState) > Table().iconSize().width() + letters,
               qPrintable(UiText(word)));
    }
    for (const int column : {0, 3, kState}) {
      QVERIFY(Table().columnWidth(column) >= Table().horizontalHeader()->sectionSizeHint(column));
    }
  }

  void WhatIsWrongStandsBesideItsStateWhereThereIsRoom() {
    OpenDesk();
    desk_->Text1().selectAll();
    desk_->Text1().insert(QStringLiteral("A\u00FE"));
    const QModelIndex state = Table().model()->index(0, kState);
    const auto drawn = [&](int width) {
      QStyleOptionViewItem option;
      option.widget = &Table();
      option.rect = QRect(0, 0, width, 20);
      OpenWordDelegate().initStyleOption(&option, state);
      return option.text;
    };
    QCOMPARE(drawn(Table().columnWidth(kState)), UiText(UiTextId::kFinding));
    QCOMPARE(drawn(1000), Shown(0, kState));
    QCOMPARE(state.data(Qt::ToolTipRole).toString(), UiText(UiTextId::kPlaceholderStray));
  }

  void StatesStandWholeInColumnsOfAnotherRun() {
    OpenDesk();
    Table().setColumnWidth(kState, 20);
    desk_->program.desk().close();
    desk_ = std::make_unique<Desk>();
    OpenDesk();
    QVERIFY(Table().columnWidth(kState) > 20);
  }

  void KeepsItsColumnsFromRunToRun() {
    OpenDesk();
    Table().horizontalHeader()->resizeSection(1, 321);
    desk_->program.desk().close();
    desk_ = std::make_unique<Desk>();
    OpenDesk();
    QCOMPARE(Table().columnWidth(1), 321);
    QSettings(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("vendlingua"),
              QStringLiteral("desk"))
        .clear();
  }
};

namespace {
const RegisteredTest kDeskTableTest("desk_table_test", RunTest<DeskTableTest>);
}  // namespace

}  // namespace vendlingua::test

#include "desk_table_test.moc"
