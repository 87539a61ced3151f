#include <QLabel>
#include <array>

#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

class LanguagesTest : public DeskTest {
  Q_OBJECT

 private slots:
  void OriginZeroOfAMsxFileIsTheBuiltInTable() {
    desk_->EditMsx();
    QString origin;
    for (int i = 0; i < 16; ++i) {
      origin += desk_->program.Get<QLabel>(qPrintable(QStringLiteral("Label5(%1)").arg(i))).text();
    }
    QCOMPARE(origin, QStringLiteral("    MP0417AA    "));
  }

  void EveryLanguageOfTheFileCanBeOriginAndDestination() {
    desk_->Open("A.MSX", MsxFile(3));
    desk_->program.Choose("mnuori(2)");
    desk_->program.Choose("mnuDes(3)");
    QCOMPARE(desk_->program.Get<QLabel>("Label5(1)").text(), QStringLiteral("2"));
    QCOMPARE(desk_->Text1().text(), QStringLiteral("L3 M0"));
    QVERIFY(desk_->Text1().isEnabled());
    QVERIFY(desk_->program.Entry("mnuSave").isEnabled());
    QVERIFY(desk_->program.Entry("mnuSaas").isEnabled());
    QVERIFY(desk_->program.Entry("mnuTLCD").isEnabled());
  }

  void ANewLanguageStartsBlankAndUnsaved() {
    desk_->Edit(MesFile());
    desk_->program.engine().languages.StartNewLanguage(0);
    QCOMPARE(desk_->Stored(0), std::string("    "));
    QVERIFY(desk_->Modified());
    desk_->user.No();
    desk_->program.Choose("mnuDes(1)");
  }

  void ANewLanguageStartsFromAnotherOne() {
    desk_->Edit(MesFile());
    desk_->program.Choose("mnuNew(1)");
    QCOMPARE(desk_->Text1().text(), QStringLiteral("1000"));
    QVERIFY(desk_->Modified());
  }

  void LeavingTheProgramAsksToSaveANewLanguage() {
    const auto path = desk_->Edit(MesFile());
    desk_->program.Choose("mnuNew(1)");
    desk_->user.Yes();
    desk_->user.Type(QStringLiteral("neu"));
    QVERIFY(desk_->program.window().close());
    QCOMPARE(desk_->user.FirstBox().text, UiText(43));
    QCOMPARE(Slurp(path), MesFile().Bytes() + "NEU                 100011111222");
  }

  void TheEntryAboveNewLanguagesDoesNothing() {
    desk_->Edit(MesFile());
    desk_->program.Entry("mnuDes(0)").trigger();
    QCOMPARE(int{desk_->program.set().DestLang}, 1);
    QVERIFY(!desk_->Modified());
  }

  void AMsxFileTakesNoNewLanguage() {
    desk_->EditMsx();
    desk_->program.OpenMenu("mnuDest");
    QVERIFY(!desk_->program.Entry("mnuDes(0)").isEnabled());
  }

  void AFileWithAHundredLanguagesTakesNoMore() {
    MesFile mes;
    mes.names.clear();
    for (int i = 0; i <= 100; ++i) {
      mes.names.push_back("L" + std::to_string(i));
    }
    desk_->Edit(mes);
    desk_->program.OpenMenu("mnuDest");
    QVERIFY(!desk_->program.Entry("mnuDes(0)").isEnabled());
    QVERIFY(desk_->program.Entry("mnuDes(100)").isVisible());
    desk_->program.engine().languages.StartNewLanguage(0);
    QCOMPARE(desk_->user.LastBox().text, UiText(31));
    QCOMPARE(desk_->user.LastBox().title, UiText(30));
    QCOMPARE(desk_->user.LastBox().icon, QMessageBox::Information);
  }

  void ADisplayTypeChangesTheFontEverywhere() {
    desk_->Edit(MesFile());
    constexpr std::array kFamilies = {"LCD", "LCD_CY", "LCD KTV", "LCD HBR"};
    for (std::size_t type = kFamilies.size(); type-- > 0;) {
      desk_->program.Choose(qPrintable(QStringLiteral("mnuLCD(%1)").arg(type)));
      const QString family = QLatin1String(kFamilies.at(type));
      for (const char* control : {"Text1", "Label1(0)", "Label1(254)", "Label5(0)", "Label7"}) {
        const QFontInfo font(desk_->program.Get<QWidget>(control).font());
        QCOMPARE(font.family().toUpper(), family);
      }
    }
  }

  void OnlyAnotherDisplayTypeIsAChange() {
    desk_->Edit(MesFile());
    desk_->program.Choose("mnuLCD(0)");
    QVERIFY(!desk_->Modified());
    desk_->program.Choose("mnuLCD(1)");
    QVERIFY(desk_->Modified());
    QVERIFY(desk_->program.Entry("mnuLCD(1)").isChecked());
    QVERIFY(!desk_->program.Entry("mnuLCD(0)").isChecked());
  }

  void ADisplayTypeOutOfAFileIsNoChange() {
    MesFile mes;
    mes.flags = "0C";
    desk_->Edit(mes);
    QVERIFY(desk_->program.Entry("mnuLCD(3)").isChecked());
    QVERIFY(!desk_->Modified());
  }
};

namespace {
const RegisteredTest kLanguagesTest("languages_test", RunTest<LanguagesTest>);
}  // namespace

}  // namespace vendlingua::test

#include "languages_test.moc"
