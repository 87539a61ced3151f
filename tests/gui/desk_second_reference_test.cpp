#include <QAccessible>
#include <QComboBox>
#include <QTableView>

#include "desktop/desk/message_table.h"
#include "desktop/fonts/cell_colors.h"
#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

/// A further language of the file beneath the origin in the desk's table. Message 1 says "BBBB",
/// and "DBBB" in SUOMI.
class DeskSecondReferenceTest : public DeskTest {
  Q_OBJECT

 private:
  QTableView& Table() { return desk_->program.GetInDesk<QTableView>("DeskTable"); }
  QComboBox& Box() { return desk_->program.GetInDesk<QComboBox>("DeskSecondReference"); }

  void OpenDesk() {
    MesFile mes;
    mes.names = {"Default", "ITALIANO", "ENGLISH", "SUOMI"};
    OpenAtDesk(Lettered(mes.Bytes()));
  }

  void Choose(const QString& language) {
    Box().setCurrentText(language);
    emit Box().activated(Box().currentIndex());
  }

  QStringList Offered() {
    QStringList names;
    for (int entry = 0; entry < Box().count(); ++entry) {
      names += Box().itemText(entry);
    }
    return names;
  }

  int RowHeight() { return Table().rowHeight(1); }

  // How many lines of cells a row of the table shows there.
  int LinesIn(MessageTable::Column column) {
    const QImage picture = Table().viewport()->grab().toImage();
    const QRect item = Table().visualRect(Table().model()->index(1, column));
    const auto shows_cells = [&](int y) {
      for (int x = item.left(); x <= item.right(); ++x) {
        if (picture.pixelColor(x, y).rgb() == kCellBorder) {
          return true;
        }
      }
      return false;
    };
    int lines = 0;
    for (int y = item.top() + 1; y <= item.bottom(); ++y) {
      lines += shows_cells(y) && !shows_cells(y - 1) ? 1 : 0;
    }
    return lines;
  }

  QString Spoken() {
    return Table().model()->index(1, MessageTable::kOrigin).data(Qt::AccessibleTextRole).toString();
  }

 private slots:
  void NoneComesFirst() {
    OpenDesk();
    QCOMPARE(Offered(),
             QStringList({UiText(UiTextId::kNoSecondReference), QStringLiteral("ITALIANO"),
                          QStringLiteral("ENGLISH"), QStringLiteral("SUOMI")}));
    QCOMPARE(Box().currentIndex(), 0);
    QCOMPARE(LinesIn(MessageTable::kOrigin), 1);
    QCOMPARE(Spoken(), QStringLiteral("BBBB"));
  }

  void StandsBeneathTheOrigin() {
    OpenDesk();
    const int height = RowHeight();
    Choose(QStringLiteral("SUOMI"));
    QVERIFY(RowHeight() > height);
    QCOMPARE(LinesIn(MessageTable::kOrigin), 2);
    QCOMPARE(LinesIn(MessageTable::kDestination), 1);
    QCOMPARE(Spoken(), QStringLiteral("BBBB, SUOMI: DBBB"));
    Choose(UiText(UiTextId::kNoSecondReference));
    QCOMPARE(RowHeight(), height);
    QCOMPARE(Spoken(), QStringLiteral("BBBB"));
  }

  void SpeaksTheInterfaceLanguage() {
    OpenDesk();
    Choose(QStringLiteral("SUOMI"));
    desk_->program.Choose("smnuLingue(2)");
    QCOMPARE(Box().itemText(0), QStringLiteral("Origin alone"));
    QCOMPARE(Box().currentText(), QStringLiteral("SUOMI"));
  }

  void AFileThatLacksItShowsNone() {
    OpenDesk();
    Choose(QStringLiteral("SUOMI"));
    desk_->Open("OTHER.MES", MesFile().Bytes());
    QCOMPARE(Box().currentIndex(), 0);
    desk_->Open(desk_->folder / "TEST.MES");
    QCOMPARE(Box().currentText(), QStringLiteral("SUOMI"));
  }

  void IsKeptFromRunToRun() {
    OpenDesk();
    Choose(QStringLiteral("SUOMI"));
    desk_->program.desk().close();
    desk_ = std::make_unique<Desk>();
    OpenDesk();
    QCOMPARE(Box().currentText(), QStringLiteral("SUOMI"));
    QCOMPARE(LinesIn(MessageTable::kOrigin), 2);
    Choose(UiText(UiTextId::kNoSecondReference));
    desk_->program.desk().close();
  }
};

namespace {
const RegisteredTest kDeskSecondReferenceTest("desk_second_reference_test",
                                              RunTest<DeskSecondReferenceTest>);
}  // namespace

}  // namespace vendlingua::test

#include "desk_second_reference_test.moc"
