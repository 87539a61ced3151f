#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <cstddef>

#include "gui/support/desk_test.h"
#include "gui/support/drag.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

// Characters of the map that are dropped on the edit box.
class DropTest : public DeskTest {
  Q_OBJECT

 private:
  static constexpr int kCellPitch = 12;  // pixels

  // Fills the first message of a set of this width and shows the map.
  void EditFullText(std::size_t width) {
    MesFile mes;
    mes.width = width;
    desk_->Edit(mes);
    desk_->Type(std::string(width, '-').c_str());
    desk_->program.Get<QPushButton>("Command1").click();
  }

  // Drops "A" and returns the pixel columns of the edit box that look otherwise afterwards: first
  // and last.
  std::pair<int, int> ColumnsChangedByADropAt(int x) {
    QLineEdit& edit_box = desk_->Text1();
    const QImage before = edit_box.grab().toImage();
    DragCharacter(desk_->program.Get<QLabel>("Label1(64)"), edit_box, {x, 5});
    const QImage after = edit_box.grab().toImage();
    int first = after.width();
    int last = -1;
    for (int column = 0; column < after.width(); ++column) {
      const QRect strip(column, 0, 1, after.height());
      if (before.copy(strip) != after.copy(strip)) {
        first = std::min(first, column);
        last = column;
      }
    }
    return {first, last};
  }

 private slots:
  void LandsInTheCellUnderTheMouse_data() {
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("cell");
    QTest::newRow("1 of 2") << 2 << 0;
    QTest::newRow("2 of 2") << 2 << 1;
    QTest::newRow("16 of 16") << 16 << 15;
    QTest::newRow("20 of 20") << 20 << 19;
    QTest::newRow("1 of 30") << 30 << 0;
    QTest::newRow("9 of 30") << 30 << 8;
    QTest::newRow("20 of 30") << 30 << 19;
    QTest::newRow("20 of 40") << 40 << 19;
  }
  void LandsInTheCellUnderTheMouse() {
    QFETCH(int, width);
    QFETCH(int, cell);
    EditFullText(static_cast<std::size_t>(width));
    for (const int x : {cell * kCellPitch, cell * kCellPitch + kCellPitch - 1}) {
      desk_->Type(std::string(static_cast<std::size_t>(width), '-').c_str());
      desk_->Text1().home(false);
      QApplication::processEvents();
      DragCharacter(desk_->program.Get<QLabel>("Label1(64)"), desk_->Text1(), {x, 5});
      QString expected(width, QLatin1Char('-'));
      expected[cell] = QLatin1Char('A');
      QCOMPARE(desk_->Text1().text(), expected);
    }
  }

  void LandsUnderTheMouseInATextThatIsScrolled_data() {
    QTest::addColumn<int>("x");
    for (const int x : {3, 100, 170, 250}) {
      QTest::addRow("at %d", x) << x;
    }
  }
  void LandsUnderTheMouseInATextThatIsScrolled() {
    QFETCH(int, x);
    EditFullText(30);
    desk_->Text1().end(false);
    const auto [first, last] = ColumnsChangedByADropAt(x);
    QVERIFY(last - first < kCellPitch);
    QVERIFY2(first - kCellPitch < x && x < last + kCellPitch,
             qPrintable(QStringLiteral("%1 to %2").arg(first).arg(last)));
    QVERIFY(desk_->Text1().text().indexOf(QLatin1Char('A')) > x / kCellPitch);
  }

  void GoesIntoTheLastCellBehindTheText() {
    EditFullText(2);
    DragCharacter(desk_->program.Get<QLabel>("Label1(64)"), desk_->Text1(), {25, 5});
    QCOMPARE(desk_->Text1().text(), QStringLiteral("-A"));
  }
};

namespace {
const RegisteredTest kDropTest("drop_test", RunTest<DropTest>);
}  // namespace

}  // namespace vendlingua::test

#include "drop_test.moc"
