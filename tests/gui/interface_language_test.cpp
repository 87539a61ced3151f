#include <QInputDialog>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <filesystem>
#include <functional>

#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

namespace {

namespace fs = std::filesystem;

// A row for each language that the program comes with.
void AddLanguageRows() {
  QTest::addColumn<QString>("language");
  for (const auto& file : fs::directory_iterator(VENDLINGUA_LANGUAGES_FOLDER)) {
    const std::string name = file.path().stem().string();
    QTest::newRow(name.c_str()) << QString::fromStdString(name);
  }
}

// Line `number` of a language file, as an editor of text files shows it.
QString LineOf(const QString& language, qsizetype number) {
  const std::string file = language.toStdString() + ".lng";
  const std::string content = Slurp(fs::path(VENDLINGUA_LANGUAGES_FOLDER) / file);
  return QString::fromLatin1(content.c_str()).split(QStringLiteral("\r\n")).at(number - 1);
}

}  // namespace

class InterfaceLanguageTest : public DeskTest {
  Q_OBJECT

 private:
  QString Caption(const char* entry) { return desk_->program.Entry(entry).text(); }

  // The entry of the interface language `name`.
  QAction& InterfaceLanguage(const QString& name) {
    for (int i = 0; i < 10; ++i) {
      const QByteArray entry = "smnuLingue(" + QByteArray::number(i) + ")";
      if (Caption(entry.constData()) == name) {
        return desk_->program.Entry(entry.constData());
      }
    }
    qFatal("there is no language %s", qPrintable(name));
  }

  // Changes the file of a language that is not in use.
  void Rewrite(const char* file, const std::function<void(std::string&)>& change) {
    const std::string name = std::string("bin/") + file;
    std::string content = Slurp(desk_->folder / name);
    change(content);
    desk_->folder.Write(name, content);
  }

  void ExpectSvenskaRefused() {
    InterfaceLanguage(QStringLiteral("english")).trigger();
    InterfaceLanguage(QStringLiteral("svenska")).trigger();
    QCOMPARE(desk_->user.boxes().size(), std::size_t{1});
    QCOMPARE(desk_->user.LastBox().text, UiText(37));
    QCOMPARE(desk_->user.LastBox().title, QStringLiteral("Language file"));
    QCOMPARE(desk_->user.LastBox().icon, QMessageBox::Warning);
    QVERIFY(InterfaceLanguage(QStringLiteral("english")).isChecked());
    QVERIFY(!InterfaceLanguage(QStringLiteral("svenska")).isChecked());
    QCOMPARE(Caption("mnuFile"), QStringLiteral("&File"));
  }

 private slots:
  void AnInterfaceLanguageCaptionsEverythingAtOnce() {
    InterfaceLanguage(QStringLiteral("deutsch")).trigger();
    QCOMPARE(Caption("mnuOpen"), QStringLiteral("\u00D6&ffnen..."));
    QCOMPARE(desk_->program.Get<QLabel>("Label8(1)").text(), QStringLiteral("Ziel"));
    QCOMPARE(desk_->program.Get<QPushButton>("Command2").text(), QStringLiteral("Neue Meldung"));
    QVERIFY(InterfaceLanguage(QStringLiteral("deutsch")).isChecked());
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

  void TheButtonsOfTheCompilerSpeakTheLanguage_data() { AddLanguageRows(); }
  void TheButtonsOfTheCompilerSpeakTheLanguage() {
    QFETCH(QString, language);
    InterfaceLanguage(language).trigger();
    desk_->Edit(MesFile());
    desk_->program.Choose("mnuMake");
    const auto& compile = desk_->program.GetInCompiler<QPushButton>("Command1");
    const auto& close = desk_->program.GetInCompiler<QPushButton>("Command2");
    QCOMPARE(compile.text(), LineOf(language, 25));
    QCOMPARE(close.text(), LineOf(language, 26));
    for (const QPushButton* button : {&compile, &close}) {
      QVERIFY(!button->text().isEmpty());
      QVERIFY(button->sizeHint().width() <= button->width());
    }
  }

  void TheButtonsOfAQuestionSpeakTheLanguage_data() { AddLanguageRows(); }
  void TheButtonsOfAQuestionSpeakTheLanguage() {
    QFETCH(QString, language);
    InterfaceLanguage(language).trigger();
    desk_->Edit(MesFile());
    desk_->Type("EDIT");
    QString yes;
    QString no;
    desk_->user.on_dialog = [&](QDialog& dialog) {
      const auto& box = dynamic_cast<QMessageBox&>(dialog);
      yes = box.button(QMessageBox::Yes)->text();
      no = box.button(QMessageBox::No)->text();
    };
    desk_->user.No();
    QVERIFY(desk_->program.window().close());
    QCOMPARE(desk_->user.FirstBox().title, LineOf(language, 42));
    QCOMPARE(desk_->user.FirstBox().text, LineOf(language, 43));
    QCOMPARE(yes, LineOf(language, 62));
    QCOMPARE(no, LineOf(language, 63));
    QVERIFY(!QKeySequence::mnemonic(yes).isEmpty());
    QVERIFY(!QKeySequence::mnemonic(no).isEmpty());
    QVERIFY(QKeySequence::mnemonic(yes) != QKeySequence::mnemonic(no));
  }

  void TheButtonsOfAnInputBoxSpeakTheLanguage_data() { AddLanguageRows(); }
  void TheButtonsOfAnInputBoxSpeakTheLanguage() {
    QFETCH(QString, language);
    InterfaceLanguage(language).trigger();
    desk_->Edit(MesFile());
    desk_->program.Choose("mnuMake");
    QString cancel;
    desk_->user.on_dialog = [&](QDialog& dialog) {
      cancel = dynamic_cast<QInputDialog&>(dialog).cancelButtonText();
    };
    desk_->user.Cancel();
    QTest::mouseClick(&desk_->program.GetInCompiler<QLabel>("Label1(1)"), Qt::RightButton);
    QCOMPARE(desk_->user.inputs().front().title, LineOf(language, 48));
    QCOMPARE(desk_->user.inputs().front().prompt, LineOf(language, 49));
    QCOMPARE(cancel, LineOf(language, 64));
  }

  void RefusesALanguageFileThatIsALineShort() {
    Rewrite("svenska.lng", [](std::string& content) {
      content.resize(content.rfind("\r\n", content.size() - 3) + 2);
    });
    ExpectSvenskaRefused();
  }

  void RefusesALanguageFileWhoseSectionMarksStandElsewhere() {
    Rewrite("svenska.lng", [](std::string& content) {
      const std::size_t mark = content.find(";--");
      const std::size_t next = content.find("\r\n", mark) + 2;
      const std::string line = content.substr(mark, next - mark);
      content.erase(mark, line.size());
      content.insert(content.find("\r\n", mark) + 2, line);
    });
    ExpectSvenskaRefused();
  }

  void TakesALanguageFileThatDiffersInOrdinaryLines() {
    Rewrite("svenska.lng", [](std::string& content) {
      content.replace(0, content.find("\r\n"), "Datei");
      content += "one more line\r\n";
    });
    InterfaceLanguage(QStringLiteral("svenska")).trigger();
    QVERIFY(InterfaceLanguage(QStringLiteral("svenska")).isChecked());
    QCOMPARE(Caption("mnuFile"), QStringLiteral("Datei"));
  }

  void KeepsTheLanguageWhenTheFileOfAnotherIsGone() {
    InterfaceLanguage(QStringLiteral("english")).trigger();
    std::filesystem::remove(desk_->folder / "bin" / "deutsch.lng");
    InterfaceLanguage(QStringLiteral("deutsch")).trigger();
    QCOMPARE(desk_->user.LastBox().title, QStringLiteral("ERROR"));
    QVERIFY(InterfaceLanguage(QStringLiteral("english")).isChecked());
    QVERIFY(!InterfaceLanguage(QStringLiteral("deutsch")).isChecked());
    QCOMPARE(Caption("mnuFile"), QStringLiteral("&File"));
  }
};

namespace {
const RegisteredTest kInterfaceLanguageTest("interface_language_test",
                                            RunTest<InterfaceLanguageTest>);
}  // namespace

}  // namespace vendlingua::test

#include "interface_language_test.moc"
