#include <QImage>
#include <QLabel>
#include <QPushButton>

#include "gui/support/desk_test.h"
#include "gui/support/drag.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

/// What the editor shows, and what it stores of what is typed.
class EditorTest : public DeskTest {
  Q_OBJECT

 private:
  // Which pixel columns of cell `index` of a picture have dots, as 0 and 1.
  static QString InkedColumns(const QImage& image, int index) {
    constexpr int kPitch = 12;
    const auto left = [&](int cell) { return qRound(kPitch * cell * image.devicePixelRatio()); };
    QString columns;
    for (int x = left(index); x < left(index + 1); ++x) {
      bool inked = false;
      for (int y = 1; y < image.height() - 1; ++y) {
        inked = inked || qGray(image.pixel(x, y)) < 90;
      }
      columns += inked ? QLatin1Char('1') : QLatin1Char('0');
    }
    return columns;
  }

 private slots:
  void ComesAliveWithTheOrigin() {
    desk_->Open("A.MES", MesFile().Bytes());
    QVERIFY(!Cell(0).isVisible());
    QVERIFY(!desk_->HScroll1().isEnabled());
    QVERIFY(!desk_->program.Entry("mnuDest").isEnabled());
    desk_->program.Choose("mnuori(1)");
    QVERIFY(Cell(3).isVisible());
    QVERIFY(!Cell(4).isVisible());
    QVERIFY(desk_->HScroll1().isEnabled());
    QCOMPARE(desk_->HScroll1().maximum(), 2);
    QVERIFY(desk_->program.Entry("mnuDest").isEnabled());
    QCOMPARE(Get<QLabel>("Label6").text(), QStringLiteral("0"));
    QCOMPARE(Cell(0).text(), QStringLiteral("1"));
  }

  void PlacesTheControlsAsDesigned() {
    QCOMPARE(desk_->program.window().size(), QSize(347, 195));
    QCOMPARE(Cell(0).geometry(), QRect(80, 32, 13, 23));
    QCOMPARE(Cell(19).geometry(), QRect(80 + 19 * 12, 32, 13, 23));
    QCOMPARE(desk_->Text1().geometry(), QRect(80, 92, 244, 23));
    QCOMPARE(desk_->HScroll1().geometry(), QRect(8, 40, 57, 17));
    QCOMPARE(Get<QPushButton>("Command1").geometry(), QRect(12, 96, 49, 23));
  }

  void TakesTheWidthOfTheMessages() {
    desk_->EditMsx();
    QCOMPARE(desk_->Text1().width(), 200);  // 186 x 15 + 206 = 2996 twips
    QCOMPARE(Get<QLabel>("Label8(0)").width(), 200);
    QCOMPARE(Get<QLabel>("Label8(1)").width(), 200);
  }

  void CharactersStandUnderTheOriginCells_data() {
    QTest::addColumn<int>("display_type");
    QTest::newRow("normal") << 0;
    QTest::newRow("Cyrillic") << 1;
    QTest::newRow("KTV") << 2;
    QTest::newRow("Hebrew") << 3;
  }
  // Runs once more for every scale of the desktop that people use.
  void CharactersStandUnderTheOriginCells() {
    QFETCH(int, display_type);
    MesFile mes;
    mes.width = 20;
    desk_->Edit(mes);
    desk_->HScroll1().setValue(2);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("12222222222222222222"));
    desk_->program.Choose(qPrintable(QStringLiteral("mnuLCD(%1)").arg(display_type)));
    desk_->program.window().setFocus();
    const QImage edit_box = desk_->Text1().grab().toImage();
    QCOMPARE(edit_box.devicePixelRatio(),
             qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toDouble());
    for (int i = 0; i < 20; ++i) {
      const QImage cell = Cell(i).grab().toImage();
      const QString columns = InkedColumns(cell, 0);
      QVERIFY(columns.contains(QLatin1Char('1')));
      QCOMPARE(InkedColumns(edit_box, i), columns);
    }
  }

  void PaintsPlaceholdersDark() {
    std::string bytes = MesFile().Bytes();
    bytes.at(24 + MesFile().BlockLength() + 20 + 2) = '\xFE';
    desk_->Edit(bytes);
    const QPoint beside_the_character(1, 1);
    QCOMPARE(Cell(1).grab().toImage().pixelColor(beside_the_character), QColor(255, 255, 192));
    QCOMPARE(Cell(2).grab().toImage().pixelColor(beside_the_character), QColor(192, 192, 0));
  }

  void PadsAShortTextWithBlanks() {
    desk_->Edit(MesFile());
    desk_->Type("AB");
    desk_->HScroll1().setValue(1);
    QCOMPARE(desk_->Stored(0), std::string("AB  "));
    desk_->HScroll1().setValue(0);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("AB"));
  }

  void RestoresThePlaceholdersOfAMesSet() {
    MesFile mes;
    std::string bytes = mes.Bytes();
    bytes.at(24 + mes.BlockLength() + 20 + 2) = '\xFE';
    desk_->Edit(bytes);
    QCOMPARE(Cell(2).text(), QStringLiteral("\u00FE"));
    desk_->Type("WXYZ");
    desk_->HScroll1().setValue(1);
    QCOMPARE(desk_->Stored(0), std::string("WX\xFEZ"));
  }

  void ForcesNothingUnderTheEmptyCellsOfAMsxSet() {
    desk_->EditMsx();
    desk_->HScroll1().setValue(4);  // "Prezzo", with prices that the board fills in
    QCOMPARE(Cell(15).text(), QString());
    desk_->Type("0123456789ABCDEF");
    desk_->HScroll1().setValue(5);
    QCOMPARE(desk_->Stored(4), std::string("0123456789ABCDEF"));
  }

  void KeepsOnlyTheWidthOfAPastedText() {
    desk_->Edit(MesFile());
    QApplication::clipboard()->setText(QStringLiteral("ABCDEFGHIJ"));
    desk_->Text1().selectAll();
    desk_->Text1().paste();
    QCOMPARE(desk_->Text1().text(), QStringLiteral("ABCD"));
    QCOMPARE(Status(), UiText(60));
    QVERIFY(desk_->Modified());
  }

  void PutsADroppedCharacterIntoTheCellUnderTheMouse() {
    desk_->Edit(MesFile());
    desk_->Type("WXYZ");
    Get<QPushButton>("Command1").click();
    QCOMPARE(desk_->Text1().width(), 51);  // 4 cells of 12
    DragCharacter(Get<QLabel>("Label1(64)"), desk_->Text1(), {24, 5});
    QCOMPARE(desk_->Text1().text(), QStringLiteral("WXAZ"));
    DragCharacter(Get<QLabel>("Label1(65)"), desk_->Text1(), {23, 5});
    QCOMPARE(desk_->Text1().text(), QStringLiteral("WBAZ"));
  }

  void PutsACharacterDroppedBehindTheLastCellIntoTheLastPosition() {
    desk_->Edit(MesFile());
    desk_->Type("AB");
    Get<QPushButton>("Command1").click();
    DragCharacter(Get<QLabel>("Label1(64)"), desk_->Text1(), {desk_->Text1().width() - 1, 5});
    QCOMPARE(desk_->Text1().text(), QStringLiteral("AB A"));
    QCOMPARE(Get<QLabel>("Label7").text(), QStringLiteral("A"));
    QVERIFY(desk_->Modified());
  }

  void UsesAllTwentyCells() {
    MesFile mes;
    mes.width = 20;
    desk_->Edit(mes);
    QVERIFY(Cell(19).isVisible());
    QCOMPARE(Cell(19).text(), QStringLiteral("0"));
    QVERIFY(desk_->Text1().geometry().right() < desk_->program.window().width());
  }

  void ShowsTwentyCellsOfAWiderMessageAndKeepsItWhole() {
    MesFile mes;
    mes.width = 40;
    desk_->Edit(mes);
    QVERIFY(Cell(19).isVisible());
    const std::string text = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789abcd";
    desk_->Type(text.c_str());
    desk_->HScroll1().setValue(1);
    QCOMPARE(desk_->Stored(0), text);
  }

  void MarksTheMessageThatNamesTheLanguage() {
    desk_->Edit(MesFile());
    QVERIFY(!Get<QLabel>("Label9(0)").isVisible());
    desk_->HScroll1().setValue(1);
    QVERIFY(Get<QLabel>("Label9(0)").isVisible());
    QVERIFY(Get<QLabel>("Label9(1)").isVisible());
    desk_->HScroll1().setValue(2);
    QVERIFY(!Get<QLabel>("Label9(0)").isVisible());
  }

  void MarksTheMessageThatNamesTheLanguageOfAMsxSet() {
    desk_->EditMsx();
    desk_->HScroll1().setValue(169);
    QVERIFY(Get<QLabel>("Label9(0)").isVisible());
    desk_->HScroll1().setValue(171);
    QVERIFY(!Get<QLabel>("Label9(0)").isVisible());
  }

  void MarksNoMessageWithoutADestination() {
    desk_->Open("A.MES", MesFile().Bytes());
    desk_->program.Choose("mnuori(1)");
    desk_->HScroll1().setValue(1);
    QVERIFY(!Get<QLabel>("Label9(0)").isVisible());
  }
};

namespace {
const RegisteredTest kEditorTest("editor_test", RunTest<EditorTest>);
}  // namespace

}  // namespace vendlingua::test

#include "editor_test.moc"
