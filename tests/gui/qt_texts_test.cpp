#include <QAction>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLibraryInfo>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <memory>

#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {
namespace {

namespace fs = std::filesystem;

QString ButtonText(const QDialog& dialog, QDialogButtonBox::StandardButton button) {
  return dialog.findChild<QDialogButtonBox*>()->button(button)->text();
}

}  // namespace

// The texts that come with Qt: they have to be in the language of the others.
class QtTextsTest : public DeskTest {
  Q_OBJECT

 private:
  void Speak(const QString& language) {
    for (int i = 0; i < 10; ++i) {
      QAction& entry = desk_->program.Entry(qPrintable(QStringLiteral("smnuLingue(%1)").arg(i)));
      if (entry.text() == language) {
        entry.trigger();
        return;
      }
    }
    qFatal("there is no language %s", qPrintable(language));
  }

  // Every entry of the menu of the edit box, without its key and its mnemonic.
  QStringList EditMenu() {
    const std::unique_ptr<QMenu> menu(desk_->Text1().createStandardContextMenu());
    QStringList entries;
    for (const QAction* entry : menu->actions()) {
      entries += entry->text().section(QLatin1Char('\t'), 0, 0).remove(QLatin1Char('&'));
    }
    return entries;
  }

 private slots:
  void SpeakTheInterfaceLanguage_data() {
    QTest::addColumn<QString>("copy");
    QTest::addColumn<QString>("save_as");
    QTest::addColumn<QString>("cancel");
    QTest::newRow("dansk") << "Kopi\u00E9r"
                           << "Gem som"
                           << "Annuller";
    QTest::newRow("deutsch") << "Kopieren"
                             << "Speichern unter"
                             << "Abbrechen";
    QTest::newRow("english") << "Copy"
                             << "Save As"
                             << "Cancel";
    QTest::newRow("espanol") << "Copiar"
                             << "Guardar como"
                             << "Cancelar";
    QTest::newRow("francais") << "Copier"
                              << "Enregistrer sous"
                              << "Annuler";
    QTest::newRow("italiano") << "Copia"
                              << "Salva come"
                              << "Annulla";
    QTest::newRow("nederlands") << "Kopi\u00EBren"
                                << "Opslaan als"
                                << "Annuleren";
    QTest::newRow("portugues") << "Copiar"
                               << "Gravar Como"
                               << "Cancelar";
    QTest::newRow("svenska") << "Kopiera"
                             << "Spara som"
                             << "Avbryt";
  }
  void SpeakTheInterfaceLanguage() {
    QFETCH(QString, copy);
    QFETCH(QString, save_as);
    QFETCH(QString, cancel);
    Speak(QLatin1String(QTest::currentDataTag()));
    desk_->Edit(MesFile());
    QVERIFY(EditMenu().contains(copy));
    QString button;
    bool places_fit = false;
    desk_->user.on_dialog = [&](QDialog& dialog) {
      button = ButtonText(dialog, QDialogButtonBox::Cancel).remove(QLatin1Char('&'));
      const auto& places = *dialog.findChild<QListView*>(QStringLiteral("sidebar"));
      places_fit = places.width() >= places.sizeHint().width();
    };
    desk_->user.Cancel();
    desk_->program.Choose("mnuSaas");
    QCOMPARE(desk_->user.files().back().title, save_as);
    QCOMPARE(button, cancel);
    QVERIFY(places_fit);
  }

  void AreTakenFromOlderTranslationsToo() {
    Speak(QStringLiteral("svenska"));
    QString button;
    desk_->user.on_dialog = [&](QDialog& dialog) {
      button = ButtonText(dialog, QDialogButtonBox::Open).remove(QLatin1Char('&'));
    };
    desk_->user.Cancel();
    desk_->program.Choose("mnuOpen");
    QCOMPARE(button, QStringLiteral("\u00D6ppna"));
  }

  void AreOursWhereQtHasNone() {
    Speak(QStringLiteral("svenska"));
    QString folder;
    desk_->user.on_dialog = [&](QDialog& dialog) {
      folder = dialog.findChild<QLabel*>(QStringLiteral("lookInLabel"))->text();
    };
    desk_->user.Cancel();
    desk_->program.Choose("mnuOpen");
    QCOMPARE(folder, QStringLiteral("Leta i:"));
  }

  void ChangeWithTheInterfaceLanguage() {
    Speak(QStringLiteral("deutsch"));
    QVERIFY(EditMenu().contains(QStringLiteral("Ausschneiden")));
    Speak(QStringLiteral("english"));
    QVERIFY(EditMenu().contains(QStringLiteral("Cut")));
  }

  void AreThoseOfTheLastRunAtTheStart() {
    Speak(QStringLiteral("espanol"));
    desk_->program.window().close();
    const RunningProgram next(desk_->folder / "bin");
    QVERIFY(EditMenu().contains(QStringLiteral("Copiar")));
  }

  void EndWithTheProgram() {
    Speak(QStringLiteral("deutsch"));
    QCOMPARE(QFileDialog::tr("Save As"), QStringLiteral("Speichern unter"));
    desk_ = std::make_unique<Desk>();
    Speak(QStringLiteral("english"));
    QCOMPARE(QFileDialog::tr("Save As"), QStringLiteral("Save As"));
  }

  // So a folder that is carried from machine to machine has all it needs.
  void AreLookedForBesideTheProgramFirst() {
    const fs::path folder = desk_->folder / "bin" / "translations";
    fs::create_directory(folder);
    const fs::path german =
        ToPath(QLibraryInfo::path(QLibraryInfo::TranslationsPath)) / "qtbase_de.qm";
    fs::copy_file(german, folder / "qtbase_da.qm");
    Speak(QStringLiteral("english"));
    Speak(QStringLiteral("dansk"));
    QVERIFY(EditMenu().contains(QStringLiteral("Kopieren")));
  }

  void OfALanguageThatQtDoesNotHaveAreOursOrEnglish() {
    desk_ = std::make_unique<Desk>(RunningProgram::Start::kLater);
    fs::copy_file(fs::path(VENDLINGUA_LANGUAGES_FOLDER) / "dansk.lng",
                  desk_->folder / "bin" / "klingon.lng");
    QVERIFY(desk_->program.Load());
    desk_->program.Show();
    Speak(QStringLiteral("klingon"));
    QVERIFY(EditMenu().contains(UiText(79).remove(QLatin1Char('&'))));
    QString button;
    desk_->user.on_dialog = [&](QDialog& dialog) {
      button = ButtonText(dialog, QDialogButtonBox::Cancel);
    };
    desk_->user.Cancel();
    desk_->program.Choose("mnuOpen");
    QCOMPARE(button, UiText(64));
  }
};

namespace {
const RegisteredTest kQtTextsTest("qt_texts_test", RunTest<QtTextsTest>);
}  // namespace

}  // namespace vendlingua::test

#include "qt_texts_test.moc"
