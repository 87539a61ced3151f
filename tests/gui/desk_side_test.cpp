#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>
#include <QTreeWidget>

#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

/// What stands beside the desk's table: the glass and the languages.
class DeskSideTest : public DeskTest {
  Q_OBJECT

 private:
  template <typename Control>
  Control& Part(const char* name) {
    return desk_->program.GetInDesk<Control>(name);
  }
  // Shown first: a page that is hidden shows nothing new.
  QTreeWidget& Languages() {
    auto& pages = Part<QTabWidget>("DeskPages");
    pages.setCurrentIndex(2);
    return Part<QTreeWidget>("DeskLanguages");
  }
  QTreeWidget& Findings() { return Part<QTreeWidget>("DeskFindings"); }

  void OpenDesk() {
    MesFile mes;
    mes.names = {"Default", "ITALIANO", "ENGLISH", "SUOMI"};
    OpenAtDesk(Lettered(mes.Bytes()));
  }

  void TypeAStrayPlaceholder() {
    desk_->Text1().selectAll();
    desk_->Text1().insert(QStringLiteral("A\u00FE"));
  }

  QImage CopiedGlass() {
    Part<QToolButton>("DeskCopyPicture").click();
    return QGuiApplication::clipboard()->image();
  }

 private slots:
  void TheGlassSaysItsRows() {
    OpenDesk();
    auto& glass = Part<QWidget>("DeskGlass");
    QCOMPARE(glass.accessibleName(), UiText(UiTextId::kDisplay));
    QCOMPARE(glass.accessibleDescription(), QStringLiteral("CAAA\nCBBB"));
    desk_->HScroll1().setValue(2);
    QCOMPARE(glass.accessibleDescription(), QStringLiteral("CCCC\n"));
  }

  // Sixteen cells of five dots with a dot between them and four around them, six pixels a dot. The
  // picture of "1" has its foot in the seventh row: dots 2 to 4 of the first cell of row 1.
  void CopiesTheGlassDotByDot() {
    OpenDesk();
    desk_->Type("1");
    const QImage glass = CopiedGlass();
    QCOMPARE(glass.size(), QSize((16 * 6 - 1 + 8) * 6, (2 * 9 - 1 + 8) * 6));
    const auto dot = [&](int column, int row) {
      return glass.pixelColor((4 + column) * 6 + 2, (4 + row) * 6 + 2);
    };
    const QColor lit = dot(2, 6);
    for (const int column : {1, 3}) {
      QCOMPARE(dot(column, 6), lit);
    }
    for (const int column : {0, 4}) {
      QVERIFY(dot(column, 6) != lit);
    }
    QVERIFY(dot(2, 7) != lit);
  }

  // The glass goes on below its lowest dots as far as above its highest.
  void TheGlassShowsAllItsDots() {
    OpenDesk();
    QApplication::processEvents();
    const QImage shown = Part<QWidget>("DeskGlass").grab().toImage();
    const int middle = shown.width() / 2;
    const QRgb glass = shown.pixel(middle, 0);
    const auto is_bare = [&](int y) {
      for (int x = middle / 2; x < middle + middle / 2; ++x) {
        if (shown.pixel(x, y) != glass) {
          return false;
        }
      }
      return true;
    };
    int above = 0;
    while (is_bare(above)) {
      ++above;
    }
    int last = shown.height() - 1;
    while (shown.pixel(middle, last) != glass) {
      --last;
    }
    int below = 0;
    while (is_bare(last - below)) {
      ++below;
    }
    QVERIFY2(below >= above, qPrintable(QString::number(below)));
  }

  void TheLightIsChosenAndKept() {
    OpenDesk();
    const QImage green = CopiedGlass();
    Part<QComboBox>("DeskBacklight").setCurrentIndex(1);
    const QImage blue = CopiedGlass();
    QVERIFY(green != blue);
    desk_->program.desk().close();
    desk_ = std::make_unique<Desk>();
    OpenDesk();
    QCOMPARE(Part<QComboBox>("DeskBacklight").currentIndex(), 1);
    Part<QComboBox>("DeskBacklight").setCurrentIndex(0);
    desk_->program.desk().close();
  }

  void SavesTheGlassAsAPicture() {
    OpenDesk();
    desk_->user.Choose(desk_->folder / "GLASS.png");
    Part<QToolButton>("DeskSavePicture").click();
    const std::string png = Slurp(desk_->folder / "GLASS.png");
    QCOMPARE(QImage::fromData(QByteArray::fromStdString(png), "PNG"), CopiedGlass());
    QVERIFY(Part<QLabel>("DeskStatus").text().endsWith(QStringLiteral("GLASS.png")));
  }

  void ListsWhatTheChecksFind() {
    OpenDesk();
    QCOMPARE(Findings().topLevelItemCount(), 0);
    desk_->HScroll1().setValue(1);
    TypeAStrayPlaceholder();
    QCOMPARE(Findings().topLevelItemCount(), 1);
    QCOMPARE(Findings().topLevelItem(0)->text(0), QStringLiteral("1"));
    QCOMPARE(
        Part<QTableView>("DeskTable").model()->index(1, 4).data().toString(),
        UiText(UiTextId::kFinding) + QStringLiteral(": ") + UiText(UiTextId::kPlaceholderStray));
    QCOMPARE(Part<QTabWidget>("DeskPages").tabText(1),
             UiText(UiTextId::kFindings) + QStringLiteral(" (1)"));
  }

  void FindingsComeAndGoInTheOrderOfTheirMessages() {
    OpenDesk();
    const auto numbers = [this] {
      QString listed;
      for (int row = 0; row < Findings().topLevelItemCount(); ++row) {
        listed += Findings().topLevelItem(row)->text(0);
      }
      return listed;
    };
    for (const int message : {0, 2, 1}) {
      desk_->HScroll1().setValue(message);
      TypeAStrayPlaceholder();
    }
    QCOMPARE(numbers(), QStringLiteral("012"));
    desk_->Type("M");
    QCOMPARE(numbers(), QStringLiteral("02"));
    desk_->HScroll1().setValue(0);
    desk_->Type("M");
    QCOMPARE(numbers(), QStringLiteral("2"));
    desk_->program.Choose("mnuUndo");
    QCOMPARE(numbers(), QStringLiteral("02"));
    desk_->program.Choose("smnuLingue(0)");
    desk_->program.Choose("smnuLingue(1)");
    QCOMPARE(numbers(), QStringLiteral("02"));
    QCOMPARE(Findings().topLevelItem(0)->text(1), UiText(UiTextId::kPlaceholderStray));
  }

  void AFindingStandsWholeInItsRow() {
    OpenDesk();
    desk_->HScroll1().setValue(1);
    TypeAStrayPlaceholder();
    Part<QTabWidget>("DeskPages").setCurrentIndex(1);
    desk_->program.desk().resize(1180, 680);
    const int line = Findings().fontMetrics().height();
    const auto row = [&] { return Findings().visualItemRect(Findings().topLevelItem(0)); };
    const int letters = Findings().fontMetrics().averageCharWidth();
    Findings().setFixedWidth(60 * letters);
    QTRY_VERIFY(row().height() < 2 * line);
    Findings().setFixedWidth(25 * letters);
    QTRY_VERIFY(row().height() >= 2 * line);
  }

  void MendsAFindingByOneKeyInOneStep() {
    OpenDesk();
    desk_->HScroll1().setValue(1);
    TypeAStrayPlaceholder();
    QTest::keyClick(&Part<QTableView>("DeskTable"), Qt::Key_F4);
    QCOMPARE(desk_->Stored(1), std::string("A   "));
    desk_->program.Choose("mnuUndo");
    QCOMPARE(desk_->Stored(1), std::string("A\xFE  "));
  }

  void SaysWhatTheKeyWouldDo() {
    OpenDesk();
    QVERIFY(!Part<QPushButton>("DeskFix").isEnabled());
    desk_->HScroll1().setValue(1);
    TypeAStrayPlaceholder();
    QVERIFY(Part<QPushButton>("DeskFix").isEnabled());
    QCOMPARE(Part<QPushButton>("DeskFix").text(),
             UiText(UiTextId::kPutPlaceholdersBack) + QStringLiteral(" (F4)"));
  }

  void RestoresWhatNoRuleCanMend() {
    MesFile mes;
    mes.names = {"Default", "ITALIANO", "ENGLISH"};
    desk_->Open("TEST.MES", mes.Bytes());  // with numbers: "1111" is not "2111"
    desk_->program.Choose("mnuori(1)");
    desk_->program.Choose("mnuDes(1)");
    desk_->program.Choose("mnuDesk");
    QVERIFY(QTest::qWaitForWindowActive(&desk_->program.desk()));
    desk_->Type("ABC");
    QCOMPARE(Part<QPushButton>("DeskFix").text(),
             UiText(UiTextId::kRestoreText) + QStringLiteral(" (F4)"));
    QTest::keyClick(&Part<QTableView>("DeskTable"), Qt::Key_F4);
    QCOMPARE(desk_->Stored(0), std::string("1000"));
  }

  void AFindingThatIsChosenShowsItsMessage() {
    OpenDesk();
    desk_->HScroll1().setValue(2);
    TypeAStrayPlaceholder();
    desk_->HScroll1().setValue(0);
    Findings().setCurrentItem(Findings().topLevelItem(0));
    QCOMPARE(desk_->view().Label6, 2);
  }

  void ListsTheLanguagesOfTheFile() {
    OpenDesk();
    QCOMPARE(Languages().topLevelItemCount(), 3);
    QCOMPARE(Languages().topLevelItem(1)->text(0), QStringLiteral("ENGLISH"));
    QCOMPARE(Languages().topLevelItem(0)->text(1), UiText(UiTextId::kOriginHeading));
    QCOMPARE(Languages().topLevelItem(1)->text(1), Say(UiSentence(UiTextId::kProgress, 3, 3)));
    desk_->Type(" ");
    QCOMPARE(Languages().topLevelItem(1)->text(1), Say(UiSentence(UiTextId::kProgress, 2, 3)));
  }

  void OpensALanguageByADoubleClick() {
    OpenDesk();
    const QRect row = Languages().visualItemRect(Languages().topLevelItem(2));
    QTest::mouseClick(Languages().viewport(), Qt::LeftButton, Qt::NoModifier, row.center());
    QTest::mouseDClick(Languages().viewport(), Qt::LeftButton, Qt::NoModifier, row.center());
    QCOMPARE(desk_->Text1().text(), QStringLiteral("DAAA"));
  }

  void StartsANewLanguageFromOne() {
    OpenDesk();
    Languages().setCurrentItem(Languages().topLevelItem(2));
    Part<QPushButton>("DeskLanguageNew").click();
    QCOMPARE(desk_->program.set().phase, Phase::kDestinationUnnamed);
    QCOMPARE(desk_->Stored(1), std::string("DBBB"));
  }

  void RenamesALanguage() {
    OpenDesk();
    Languages().setCurrentItem(Languages().topLevelItem(2));
    desk_->user.Type(QStringLiteral("svenska"));
    desk_->user.Yes();
    Part<QPushButton>("DeskLanguageRename").click();
    QCOMPARE(Languages().topLevelItem(2)->text(0), QStringLiteral("SVENSKA"));
  }
};

namespace {
const RegisteredTest kDeskSideTest("desk_side_test", RunTest<DeskSideTest>);
}  // namespace

}  // namespace vendlingua::test

#include "desk_side_test.moc"
