#include <QFileDialog>
#include <QTableWidget>

#include "desktop/qt_path.h"
#include "gui/support/registered_test.h"
#include "gui/support/translators_day.h"

namespace vendlingua::test {

/// A day with the keyboard alone.
class KeyboardDayTest : public TranslatorsDay {
  Q_OBJECT

 private:
  // What gets the keys: a menu that is open, else what has the focus, else the window.
  static QWidget* Target() {
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* focus = popup != nullptr ? popup : QApplication::focusWidget();
    return focus != nullptr ? focus : QApplication::activeWindow();
  }
  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(Target(), key, modifiers);
  }
  static void Type(const QString& text) { QTest::keyClicks(Target(), text); }

  // A window gets the focus: from the user, or from the desktop when a dialog closes.
  static void Return(QWidget& window) {
    window.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &window);
  }

  // Leads the focus to a control, as Tab does.
  static void TabTo(const QString& name) {
    constexpr int kMostControls = 150;
    for (int i = 0; i < kMostControls && Target()->objectName() != name; ++i) {
      Press(Qt::Key_Tab);
    }
    QCOMPARE(Target()->objectName(), name);
  }

  void TypeFileName(const std::filesystem::path& file) {
    desk_->user.By([file](QDialog& dialog) {
      if (qobject_cast<QFileDialog*>(&dialog) == nullptr) {
        return false;
      }
      QTest::keyClicks(dialog.focusWidget(), ToQString(file));
      QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
      return true;
    });
  }

  // Opens a menu by the letter that its caption underlines, and chooses the entry after `steps`.
  void ChooseInMenu(Qt::Key letter, int steps) {
    Press(letter, Qt::AltModifier);
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
    for (int i = 0; i < steps; ++i) {
      Press(Qt::Key_Down);
    }
    Press(Qt::Key_Return);
  }

  void TranslateByKeyboard() {
    Press(Qt::Key_Home, Qt::ControlModifier);
    Press(Qt::Key_F, Qt::ControlModifier);
    Type(QStringLiteral("Diagnosi"));
    Press(Qt::Key_Return);
    QCOMPARE(Current(), kDiagnostics);
    Press(Qt::Key_Escape);
    Press(Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(desk_->Stored(kDiagnostics), std::string("  Diagnostics   "));
    Press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(Current(), kFullTest);
    Type(QStringLiteral("F"));
    Type(QStringLiteral("ull check"));
    QCOMPARE(desk_->Stored(kFullTest), std::string("Full check      "));
    Press(Qt::Key_F4);
    QCOMPARE(desk_->Stored(kFullTest), std::string("   Full check   "));
    Press(Qt::Key_M, Qt::ControlModifier);
  }

  void PretranslateByKeyboard() {
    desk_->user.By([](QDialog& dialog) {
      const bool fits = dialog.findChild<QTableWidget*>()->rowCount() == 1;
      QTest::keyClick(&dialog, Qt::Key_Return);
      return fits;
    });
    TabTo(QStringLiteral("DeskPretranslate"));
    Press(Qt::Key_Space);
    Return(desk_->program.desk());
    QCOMPARE(desk_->Stored(kWaterTest), std::string("   Water test   "));
  }

  void CompileByKeyboard() {
    Press(Qt::Key_C, Qt::AltModifier);
    QTRY_VERIFY(desk_->program.compiler() != nullptr);
    Return(*desk_->program.compiler());
    for (int language = 1; language <= kBoardLanguages; ++language) {
      TabTo(QStringLiteral("Check1(%1)").arg(language));
      Press(Qt::Key_Space);
    }
    TypeFileName(desk_->folder / "bin/FW0417AB.MHX");
    TypeFileName(desk_->folder / "bin/FW0417AB.MSX");
    TabTo(QStringLiteral("Command1"));
    Press(Qt::Key_Space);
  }

 private slots:
  void TranslatesAFile() {
    const auto file = PrepareFile();
    desk_->program.Choose("smnuLingue(2)");
    Return(Window());
    TypeFileName(file);
    Press(Qt::Key_O, Qt::ControlModifier);
    Return(Window());
    QCOMPARE(Window().windowTitle(), QLatin1String(kFile));
    ChooseInMenu(Qt::Key_O, 1);
    ChooseInMenu(Qt::Key_D, 2);
    QVERIFY(desk_->program.set().DestinationIsOpen());
    QCOMPARE(desk_->program.set().DestLang, std::uint8_t{2});
    Press(Qt::Key_L, Qt::ControlModifier);
    Return(desk_->program.desk());
    TranslateByKeyboard();
    PretranslateByKeyboard();
    Press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!desk_->Modified());
    Return(Window());
    CompileByKeyboard();
    CheckTheDaysWork(file, "   Full check   ");
  }
};

namespace {
const RegisteredTest kKeyboardDayTest("keyboard_day_test", RunTest<KeyboardDayTest>);
}  // namespace

}  // namespace vendlingua::test

#include "keyboard_day_test.moc"
