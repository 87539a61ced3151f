#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTableWidget>
#include <QToolButton>

#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

/// Finding, replacing and filtering at the desk. The origin reads "1000", "1111", "1222", the
/// destination "2000", "2111", "2222".
class DeskFindTest : public DeskTest {
  Q_OBJECT

 private:
  template <typename Control>
  Control& Part(const char* name) {
    return desk_->program.GetInDesk<Control>(name);
  }
  QLineEdit& Find() { return Part<QLineEdit>("DeskFind"); }
  QTableView& Table() { return Part<QTableView>("DeskTable"); }
  QString Result() { return Part<QLabel>("DeskFindResult").text(); }
  int Current() { return desk_->view().Label6; }

  void OpenDesk() {
    MesFile mes;
    mes.names = {"Default", "ITALIANO", "ENGLISH"};
    OpenAtDesk(mes.Bytes());
  }

  void LookIn(SearchedTexts texts) {
    Part<QComboBox>("DeskFindTexts").setCurrentIndex(static_cast<int>(texts));
  }

  QString Hit(int place, int hits) { return Say(UiSentence(UiTextId::kHit, place, hits)); }

  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&Table(), key, modifiers);
  }

  // Presses the button that shows what would be replaced, and accepts or leaves it.
  void Replace(const char* by, QDialogButtonBox::ButtonRole answer) {
    preview_.clear();
    desk_->user.on_dialog = [&](QDialog& dialog) {
      auto& table = *dialog.findChild<QTableWidget*>();
      for (int row = 0; row < table.rowCount(); ++row) {
        preview_ += table.item(row, 0)->text() + QLatin1Char(' ') + table.item(row, 1)->text() +
                    QLatin1Char('>') + table.item(row, 2)->text();
      }
    };
    if (answer == QDialogButtonBox::AcceptRole) {
      desk_->user.Accept();
    } else {
      desk_->user.Cancel();
    }
    Part<QLineEdit>("DeskReplaceBy").setText(QLatin1String(by));
    Part<QPushButton>("DeskReplace").click();
  }

  QStringList preview_;

 private slots:
  void TheKeyBeginsASearch() {
    OpenDesk();
    Press(Qt::Key_F, Qt::ControlModifier);
    QVERIFY(Find().hasFocus());
    QTest::keyClick(&Find(), Qt::Key_Escape);
    QVERIFY(Table().hasFocus());
  }

  void FindsAsOneTypes() {
    OpenDesk();
    QTest::keyClicks(&Find(), QStringLiteral("22"));
    QCOMPARE(Current(), 2);
    QCOMPARE(Result(), Hit(1, 1));
  }

  void StepsThroughTheHitsAllAround() {
    OpenDesk();
    LookIn(SearchedTexts::kDestination);
    Find().setText(QStringLiteral("2"));
    QCOMPARE(Result(), Hit(1, 3));
    Press(Qt::Key_F3);
    QCOMPARE(Current(), 1);
    QCOMPARE(Result(), Hit(2, 3));
    Press(Qt::Key_F3);
    Press(Qt::Key_F3);
    QCOMPARE(Current(), 0);
    Press(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(Current(), 2);
    Press(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(Current(), 1);
  }

  void LooksWhereItIsAskedTo() {
    OpenDesk();
    LookIn(SearchedTexts::kOrigin);
    Find().setText(QStringLiteral("21"));
    QCOMPARE(Result(), UiText(UiTextId::kNothingFound));
    LookIn(SearchedTexts::kDestination);
    QCOMPARE(Current(), 1);
  }

  void FindsWhateverTheCase() {
    OpenDesk();
    desk_->Type("TeaX");
    Find().setText(QStringLiteral("EAX"));
    QCOMPARE(Result(), Hit(1, 1));
  }

  void APlainSearchTakesNoSigns() {
    OpenDesk();
    Find().setText(QStringLiteral("2.1"));
    QCOMPARE(Result(), UiText(UiTextId::kNothingFound));
  }

  void FindsARegularExpression() {
    OpenDesk();
    Part<QToolButton>("DeskFindExpression").setChecked(true);
    Find().setText(QStringLiteral("^2(1)\\1"));
    QCOMPARE(Current(), 1);
    QCOMPARE(Result(), Hit(1, 1));
  }

  void SaysWhatIsWrongWithAnExpression() {
    OpenDesk();
    Part<QToolButton>("DeskFindExpression").setChecked(true);
    Find().setText(QStringLiteral("("));
    QVERIFY(!Result().isEmpty());
    QVERIFY(!Part<QPushButton>("DeskReplace").isEnabled());
    Press(Qt::Key_F3);
    QCOMPARE(Current(), 0);
  }

  void ShowsWhatItWouldReplaceAndReplacesInOneStep() {
    OpenDesk();
    LookIn(SearchedTexts::kDestination);
    Find().setText(QStringLiteral("2"));
    Replace("X", QDialogButtonBox::AcceptRole);
    QCOMPARE(preview_, (QStringList{QStringLiteral("0 2000>X000"), QStringLiteral("1 2111>X111"),
                                    QStringLiteral("2 2222>XXXX")}));
    QCOMPARE(desk_->Stored(0), std::string("X000"));
    QCOMPARE(desk_->Stored(2), std::string("XXXX"));
    desk_->program.Choose("mnuUndo");
    QCOMPARE(desk_->Stored(0), std::string("2000"));
    QCOMPARE(desk_->Stored(2), std::string("2222"));
    QVERIFY(!desk_->program.Entry("mnuUndo").isEnabled());
  }

  void ThePreviewShowsTheCellsOfTheBoard() {
    MesFile mes;
    mes.names = {"Default", "ITALIANO", "ENGLISH"};
    std::string content = mes.Bytes();
    for (const std::size_t language : {1U, 2U}) {
      const std::string text = mes.Message(language, 2);
      content.replace(content.find(text), text.size(), text.substr(0, 3) + "\xFE");
    }
    OpenAtDesk(content);
    LookIn(SearchedTexts::kDestination);
    Find().setText(QStringLiteral("2"));
    Replace("X", QDialogButtonBox::RejectRole);
    QCOMPARE(preview_.value(2), QStringLiteral("2 222\u00FE>XXX\u00FE"));
  }

  void RefusesWhatWouldNotFit() {
    OpenDesk();
    desk_->Type("2 ");
    Find().setText(QStringLiteral("2"));
    Replace("ABC", QDialogButtonBox::AcceptRole);
    QCOMPARE(preview_[0], QStringLiteral("0 2>ABC"));
    QCOMPARE(preview_[1], QStringLiteral("1 2111>") + UiText(UiTextId::kDoesNotFit));
    QCOMPARE(desk_->Stored(0), std::string("ABC "));
    QCOMPARE(desk_->Stored(1), std::string("2111"));
  }

  void ReplacesByGroups() {
    OpenDesk();
    Part<QToolButton>("DeskFindExpression").setChecked(true);
    Find().setText(QStringLiteral("^(2)(0)"));
    Replace("\\2\\1", QDialogButtonBox::AcceptRole);
    QCOMPARE(desk_->Stored(0), std::string("0200"));
  }

  void ReplacesNothingUnlessItIsAskedTo() {
    OpenDesk();
    Find().setText(QStringLiteral("2"));
    Replace("X", QDialogButtonBox::RejectRole);
    QCOMPARE(desk_->Stored(0), std::string("2000"));
    QVERIFY(!desk_->Modified());
  }

  void ACharacterThatTheDisplayLacksIsNotPutIn() {
    OpenDesk();
    Find().setText(QStringLiteral("2"));
    Part<QLineEdit>("DeskReplaceBy").setText(QStringLiteral("\u0416"));
    Part<QPushButton>("DeskReplace").click();
    QCOMPARE(desk_->user.LastBox().text,
             UiText(UiTextId::kCharacterRefused) + QStringLiteral(" \u0416"));
    QCOMPARE(desk_->Stored(0), std::string("2000"));
  }

  void FiltersWhatIsToDo() {
    OpenDesk();
    desk_->HScroll1().setValue(1);
    desk_->Type(" ");
    Part<QComboBox>("DeskFilter").setCurrentIndex(1);
    QCOMPARE(Table().model()->rowCount(), 1);
    QCOMPARE(Table().currentIndex().row(), 0);
    desk_->HScroll1().setValue(0);
    QVERIFY(!Table().currentIndex().isValid());
  }

  void FiltersWhatWasChanged() {
    OpenDesk();
    Part<QComboBox>("DeskFilter").setCurrentIndex(2);
    QCOMPARE(Table().model()->rowCount(), 0);
    desk_->Type("TEA");
    Part<QComboBox>("DeskFilter").setCurrentIndex(0);
    Part<QComboBox>("DeskFilter").setCurrentIndex(2);
    QCOMPARE(Table().model()->rowCount(), 1);
  }

  void AMessageStaysListedWhileItIsEdited() {
    OpenDesk();
    desk_->Type(" ");
    Part<QComboBox>("DeskFilter").setCurrentIndex(1);
    desk_->Type("TEA");
    QCOMPARE(Table().model()->rowCount(), 1);
  }
};

namespace {
const RegisteredTest kDeskFindTest("desk_find_test", RunTest<DeskFindTest>);
}  // namespace

}  // namespace vendlingua::test

#include "desk_find_test.moc"
