#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <array>

#include "gui/support/desk.h"

namespace vendlingua::test {

class LanguagesTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<Desk> desk_;

  QString Caption(const char* entry) { return desk_->program.Entry(entry).text(); }

  const UiText& Texts() { return desk_->program.workspace().ui_text; }

  // The entry of the interface language `name`.
  QAction& InterfaceLanguage(const char* name) {
    for (int i = 0; i < 10; ++i) {
      const QByteArray entry = "smnuLingue(" + QByteArray::number(i) + ")";
      if (Caption(entry.constData()) == QLatin1String(name)) {
        return desk_->program.Entry(entry.constData());
      }
    }
    qFatal("there is no language %s", name);
  }

 private slots:
  void init() { desk_ = std::make_unique<Desk>(); }

  void cleanup() {
    const QStringList surprises = desk_->user.Surprises();
    desk_.reset();
    QCOMPARE(surprises, QStringList());
  }

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
    QCOMPARE(desk_->user.boxes().back().text, QString::fromStdString(Texts()[31]));
    QCOMPARE(desk_->user.boxes().back().title, QString::fromStdString(Texts()[30]));
    QCOMPARE(desk_->user.boxes().back().icon, QMessageBox::Information);
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

  void AnInterfaceLanguageCaptionsEverythingAtOnce() {
    InterfaceLanguage("deutsch").trigger();
    QCOMPARE(Caption("mnuOpen"), QStringLiteral("\u00D6&ffnen..."));
    QCOMPARE(desk_->program.Get<QLabel>("Label8(1)").text(), QStringLiteral("Ziel"));
    QCOMPARE(desk_->program.Get<QPushButton>("Command2").text(), QStringLiteral("Neue Meldung"));
    QVERIFY(InterfaceLanguage("deutsch").isChecked());
    QCOMPARE(Slurp(desk_->folder / "bin" / "vendlingua.ini"), std::string("Lingua=deutsch\r\n"));
  }

  void AllMenusFitTheWindowInEveryLanguage() {
    desk_->EditMsx();
    QMenuBar& menu_bar = *desk_->program.window().menuBar();
    for (int i = 0; i < 9; ++i) {
      desk_->program.Choose(qPrintable(QStringLiteral("smnuLingue(%1)").arg(i)));
      QApplication::processEvents();
      for (QAction* menu : menu_bar.actions()) {
        QVERIFY2(menu_bar.actionGeometry(menu).right() < menu_bar.width(),
                 qPrintable(menu->text()));
      }
    }
  }

  void TheCaptionsFitTheirControlsInEveryLanguage() {
    desk_->EditMsx();
    for (int i = 0; i < 9; ++i) {
      desk_->program.Choose(qPrintable(QStringLiteral("smnuLingue(%1)").arg(i)));
      for (const char* name : {"Label8(0)", "Label8(1)", "Label9(0)"}) {
        const auto& label = desk_->program.Get<QLabel>(name);
        QVERIFY2(label.sizeHint().width() <= label.width(), qPrintable(label.text()));
      }
      for (const char* name : {"Command1", "Command2"}) {
        const auto& button = desk_->program.Get<QPushButton>(name);
        const int needed = button.fontMetrics().horizontalAdvance(button.text());
        QVERIFY2(needed + 4 <= button.width(), qPrintable(button.text()));
      }
    }
  }

  void RefusesALanguageFileThatIsALineShort() {
    const auto file = desk_->folder / "bin" / "svenska.lng";
    std::string content = Slurp(file);
    content.resize(content.rfind("\r\n", content.size() - 3) + 2);
    std::filesystem::remove(file);
    desk_->folder.Write("bin/svenska.lng", content);
    InterfaceLanguage("english").trigger();
    InterfaceLanguage("svenska").trigger();
    QCOMPARE(desk_->user.boxes().back().text, QString::fromStdString(Texts()[37]));
    QCOMPARE(desk_->user.boxes().back().title, QStringLiteral("Language file"));
    QCOMPARE(desk_->user.boxes().back().icon, QMessageBox::Warning);
    QVERIFY(InterfaceLanguage("english").isChecked());
    QCOMPARE(Caption("mnuFile"), QStringLiteral("&File"));
  }

  void KeepsTheLanguageWhenTheFileOfAnotherIsGone() {
    InterfaceLanguage("english").trigger();
    std::filesystem::remove(desk_->folder / "bin" / "deutsch.lng");
    InterfaceLanguage("deutsch").trigger();
    QCOMPARE(desk_->user.boxes().back().title, QStringLiteral("ERROR"));
    QVERIFY(InterfaceLanguage("english").isChecked());
    QVERIFY(!InterfaceLanguage("deutsch").isChecked());
    QCOMPARE(Caption("mnuFile"), QStringLiteral("&File"));
  }
};

}  // namespace vendlingua::test

int main(int argc, char** argv) {
  return vendlingua::test::RunTest<vendlingua::test::LanguagesTest>(argc, argv);
}

#include "languages_test.moc"
