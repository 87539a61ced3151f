#include <QCheckBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTreeView>
#include <vector>

#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {
namespace {

namespace fs = std::filesystem;

// A board of nine languages: its compilation asks for two files.
MesFile NineLanguages() {
  MesFile mes;
  mes.lang_count = 9;
  mes.flags = "01";
  for (int i = 2; i <= 9; ++i) {
    mes.names.push_back("LANGUAGE " + std::to_string(i));
  }
  return mes;
}

// The names of the files that a file dialog lists.
QStringList ListedFiles(const QDialog& dialog) {
  const auto* list = dialog.findChild<QListView*>(QStringLiteral("listView"));
  const QAbstractItemModel& model = *list->model();
  QStringList names;
  for (int row = 0; row < model.rowCount(list->rootIndex()); ++row) {
    names += model.index(row, 0, list->rootIndex()).data().toString();
  }
  return names;
}

}  // namespace

class DialogsTest : public DeskTest {
  Q_OBJECT

 private:
  QCheckBox& Check1(int i) {
    return desk_->program.GetInCompiler<QCheckBox>(qPrintable(QStringLiteral("Check1(%1)").arg(i)));
  }
  QPushButton& Command1() { return desk_->program.GetInCompiler<QPushButton>("Command1"); }

  void OpenCompilerWithAllTicked() {
    desk_->Edit(NineLanguages());
    desk_->program.Choose("mnuMake");
    for (int i = 1; i <= 9; ++i) {
      Check1(i).click();
    }
    QVERIFY(Command1().isEnabled());
  }

  // Asks for two files.
  void Compile() {
    desk_->user.Choose(desk_->folder / "FW0000AA.hex");
    desk_->user.Choose(desk_->folder / "COPY.MSX");
    Command1().click();
  }

 private slots:
  void ShowsTheFileFiltersInOneSpelling() {
    desk_->user.Cancel();
    desk_->program.Choose("mnuOpen");
    QCOMPARE(desk_->user.files().front().name_filters,
             QStringList({QStringLiteral("Message (*.MES)"), QStringLiteral("Message (*.MSX)")}));
  }

  void ListsTheFilesOfItsTypeInAnyCase() {
    for (const char* name : {"bin/a.mes", "bin/B.MES", "bin/c.Mes", "bin/d.msx", "bin/mes"}) {
      desk_->folder.Write(name, MesFile().Bytes());
    }
    const QStringList expected{QStringLiteral("a.mes"), QStringLiteral("B.MES"),
                               QStringLiteral("c.Mes")};
    desk_->user.on_dialog = [&](QDialog& dialog) { QTRY_COMPARE(ListedFiles(dialog), expected); };
    desk_->user.Cancel();
    desk_->program.Choose("mnuOpen");
  }

  void CutsNoColumnOfTheFilesItLists() {
    desk_->folder.Write("bin/A.MES", std::string(123456, ' '));
    desk_->user.on_dialog = [&](QDialog& dialog) {
      auto& details = *dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
      QTRY_COMPARE(ListedFiles(dialog).size(), 1);
      QApplication::processEvents();
      for (int column = 0; column < details.header()->count(); ++column) {
        const QModelIndex cell = details.model()->index(0, column, details.rootIndex());
        QVERIFY(details.columnWidth(column) >= details.sizeHintForIndex(cell).width());
      }
    };
    desk_->user.Cancel();
    desk_->program.Choose("mnuOpen");
  }

  void OpenAsksOnUntilTheFileIsThere() {
    const fs::path path = desk_->folder.Write("A.MES", MesFile().Bytes());
    desk_->user.Choose(desk_->folder / "gone" / "A.MES");
    desk_->user.Choose(path);
    desk_->program.Choose("mnuOpen");
    QCOMPARE(desk_->user.boxes().size(), std::size_t{1});
    QCOMPARE(desk_->program.window().windowTitle(), QStringLiteral("A.MES"));
  }

  void SaveAsksOnUntilTheFolderIsThere() {
    desk_->Edit(MesFile());
    const fs::path gone = desk_->folder / "gone";
    bool answered_by_the_dialog = false;
    desk_->user.on_dialog = [&](QDialog& dialog) {
      answered_by_the_dialog =
          answered_by_the_dialog || qobject_cast<QFileDialog*>(dialog.parentWidget()) != nullptr;
    };
    desk_->user.Choose(gone / "COPY.MES");
    desk_->user.Choose(desk_->folder / "COPY.MES");
    desk_->program.Choose("mnuSaas");
    QCOMPARE(desk_->user.boxes().size(), std::size_t{1});
    QVERIFY(desk_->user.FirstBox().text.startsWith(QString::fromStdString(gone.string())));
    QCOMPARE(desk_->user.FirstBox().icon, QMessageBox::Warning);
    QVERIFY(answered_by_the_dialog);
    QCOMPARE(desk_->folder.Names(), std::string("COPY.MES TEST.MES bin"));
  }

  void ABoxWithoutATitleHasThatOfTheProgram() {
    desk_->Edit(MesFile());
    desk_->HScroll1().setValue(2);
    desk_->user.No();
    desk_->program.Get<QPushButton>("Command2").click();
    QCOMPARE(desk_->user.FirstBox().title, QStringLiteral("Vendlingua"));
  }

  void TheTwoFilesOfACompilationAreToldApartByTheirTitles() {
    OpenCompilerWithAllTicked();
    Compile();
    const auto& questions = desk_->user.files();
    QCOMPARE(questions.at(1).title, UiText(83));
    QCOMPARE(questions.at(2).title, UiText(84));
    QVERIFY(fs::exists(desk_->folder / "COPY.MSX"));
  }

  // Whatever window is active when a dialog opens: on some desktops it is none.
  void EveryDialogBelongsToTheWindowOfItsCommand() {
    OpenCompilerWithAllTicked();
    QWidget elsewhere;
    elsewhere.show();
    elsewhere.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&elsewhere));
    std::vector<QWidget*> parents;
    std::vector<QPoint> off_centre;
    bool with_icon = true;
    desk_->user.on_dialog = [&](QDialog& dialog) {
      parents.push_back(dialog.parentWidget());
      off_centre.push_back(dialog.frameGeometry().center() -
                           desk_->program.compiler()->frameGeometry().center());
      with_icon = with_icon && !dialog.windowIcon().isNull();
    };
    desk_->program.compiler()->move(150, 150);
    Compile();
    QWidget* compiler = desk_->program.compiler();
    QCOMPARE(parents, std::vector<QWidget*>({compiler, compiler}));
    QVERIFY(with_icon);
    for (const QPoint& distance : off_centre) {
      QVERIFY(distance.manhattanLength() < 60);
    }
  }

  void ADialogOfTheMainWindowBelongsToIt() {
    QWidget elsewhere;
    elsewhere.show();
    elsewhere.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&elsewhere));
    QWidget* parent = nullptr;
    desk_->user.on_dialog = [&](QDialog& dialog) { parent = dialog.parentWidget(); };
    desk_->user.Cancel();
    desk_->program.Choose("mnuOpen");
    QCOMPARE(parent, &desk_->program.window());
  }

  void TheCompilerWindowClosesOnlyAfterItsCommand() {
    OpenCompilerWithAllTicked();
    desk_->user.on_dialog = [&](QDialog& /*dialog*/) { desk_->program.compiler()->close(); };
    Compile();
    QVERIFY(fs::exists(desk_->folder / "COPY.MSX"));
    QTRY_VERIFY(desk_->program.compiler() == nullptr);
  }

  void TheMainWindowClosesOnlyAfterTheCommandOfAWindow() {
    OpenCompilerWithAllTicked();
    desk_->user.on_dialog = [&](QDialog& /*dialog*/) {
      desk_->program.window().close();
      QVERIFY(desk_->program.window().isVisible());
      QVERIFY(desk_->program.starts().programs.empty());
    };
    Compile();
    QVERIFY(fs::exists(desk_->folder / "COPY.MSX"));
    QTRY_VERIFY(!desk_->program.window().isVisible());
    QCOMPARE(desk_->program.starts().programs.size(), std::size_t{1});
  }

  void TheCompileButtonHasTheFocusAfterACompilation() {
    OpenCompilerWithAllTicked();
    Command1().setFocus();
    Compile();
    QCOMPARE(desk_->program.compiler()->focusWidget(), &Command1());
  }

  void TheCompileButtonHasTheFocusAfterACompilationThatWasCancelled() {
    OpenCompilerWithAllTicked();
    desk_->user.Cancel();
    Command1().click();
    QCOMPARE(desk_->program.compiler()->focusWidget(), &Command1());
  }
};

namespace {
const RegisteredTest kDialogsTest("dialogs_test", RunTest<DialogsTest>);
}  // namespace

}  // namespace vendlingua::test

#include "dialogs_test.moc"
