#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <filesystem>
#include <string>

#include "core/platform/change_record.h"
#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

// The open file is changed by other programs, too, or was left half-way by one.

namespace vendlingua::test {
namespace {

namespace fs = std::filesystem;

MesFile SharedMes() { return {.names = {"Default", "ITALIANO", "ENGLISH"}}; }

// The file with another text: 20 bytes of name and 4 messages of 4 cells are a block.
std::string WithText(std::string content, std::size_t language, std::size_t message,
                     const char* text) {
  return content.replace(24 + language * 36 + 20 + message * 4, 4, text);
}

}  // namespace

class SharedFileTest : public DeskTest {
  Q_OBJECT

 private:
  const std::string base_ = SharedMes().Bytes();
  fs::path path_;

  void EditMine() {
    path_ = desk_->Edit(SharedMes());
    desk_->Type("MINE");
  }

  void ExpectTaken() { QTRY_COMPARE(Status(), UiText(UiTextId::kOutsideChangesTaken)); }

  // A save from `before` to `after` was interrupted at `content`.
  fs::path Interrupted(const std::string& after, const std::string& content) {
    desk_->folder.Write("~TEST.MES.undo", ComposeRecord(RecordOf(base_, after)));
    return desk_->folder.Write("TEST.MES", content);
  }

 private slots:
  void TakesOverWhatAnotherProgramSaves() {
    EditMine();
    desk_->folder.Write("TEST.MES", WithText(base_, 1, 1, "they"));
    ExpectTaken();
    QCOMPARE(desk_->Stored(1), std::string("they"));
    QCOMPARE(desk_->Text1().text(), QStringLiteral("MINE"));
    QVERIFY(desk_->Modified());
    desk_->program.Choose("mnuSave");
    QCOMPARE(Slurp(path_), WithText(WithText(base_, 1, 1, "they"), 1, 0, "MINE"));
  }

  void SeesAFileThatTookItsPlaceAndWhatIsSavedIntoThat() {
    EditMine();
    fs::rename(desk_->folder.Write("NEW", WithText(base_, 1, 1, "they")), path_);
    ExpectTaken();
    desk_->program.Choose("mnuSave");
    desk_->folder.Write("TEST.MES", WithText(base_, 1, 1, "more"));
    QTRY_COMPARE(desk_->Stored(1), std::string("more"));
  }

  void SaysThatTheFileIsGoneAndSeesItComeBack() {
    EditMine();
    fs::remove(path_);
    QTRY_VERIFY(Status().contains(QStringLiteral("TEST.MES")));
    QCOMPARE(desk_->Text1().text(), QStringLiteral("MINE"));
    desk_->folder.Write("TEST.MES", WithText(base_, 1, 1, "they"));
    ExpectTaken();
    QCOMPARE(desk_->Text1().text(), QStringLiteral("MINE"));
  }

  void WaitsForTheEndOfADialog() {
    EditMine();
    desk_->user.on_dialog = [this](QDialog& /*dialog*/) {
      desk_->folder.Write("TEST.MES", WithText(base_, 1, 1, "they"));
      // Longer than the file is watched before it is read.
      QTest::qWait(300);
      QCOMPARE(desk_->Stored(1), std::string("1111"));
    };
    desk_->user.Cancel();
    desk_->program.Choose("mnuSaas");
    desk_->user.on_dialog = nullptr;
    ExpectTaken();
    QCOMPARE(desk_->Stored(1), std::string("they"));
  }

  void ShowsNewLanguagesInTheCompilerWindow() {
    desk_->Edit(SharedMes());
    desk_->program.Choose("mnuMake");
    desk_->folder.Write("TEST.MES", base_ + "POLSKI              " + std::string(16, 'x'));
    ExpectTaken();
    const auto& before = desk_->program.GetInCompiler<QCheckBox>("Check1(2)");
    const auto& added = desk_->program.GetInCompiler<QCheckBox>("Check1(3)");
    QCOMPARE(desk_->program.GetInCompiler<QLabel>("Label1(3)").text(), QStringLiteral("POLSKI"));
    QTRY_VERIFY(added.y() > before.y());
    QCOMPARE(added.x(), before.x());
  }

  void AsksWhichOfTwoChangesCounts_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("text");
    QTest::newRow("mine") << QStringLiteral("KeepMine") << QStringLiteral("MINE");
    QTest::newRow("theirs") << QStringLiteral("TakeTheirs") << QStringLiteral("they");
  }
  void AsksWhichOfTwoChangesCounts() {
    QFETCH(QString, button);
    QFETCH(QString, text);
    EditMine();
    desk_->folder.Write("TEST.MES", WithText(base_, 1, 0, "they"));
    QTRY_COMPARE(Status(), UiText(UiTextId::kOutsideChangesUndecided));
    desk_->user.on_dialog = [this](QDialog& dialog) {
      QCOMPARE(dialog.objectName(), QStringLiteral("ConflictBox"));
      const auto* mine = dialog.findChild<QPushButton*>(QStringLiteral("KeepMine"));
      QCOMPARE(mine->text(), UiText(UiTextId::kKeepMine));
      QCOMPARE(mine->accessibleDescription(), QStringLiteral("MINE"));
      const auto* theirs = dialog.findChild<QPushButton*>(QStringLiteral("TakeTheirs"));
      QCOMPARE(theirs->text(), UiText(UiTextId::kTakeTheirs));
      QCOMPARE(theirs->accessibleDescription(), QStringLiteral("they"));
    };
    desk_->user.Click(button);
    desk_->program.Choose("mnuSave");
    desk_->user.on_dialog = nullptr;
    QCOMPARE(Slurp(path_), WithText(base_, 1, 0, text.toLatin1().constData()));
    QCOMPARE(desk_->Text1().text(), text);
    QVERIFY(!desk_->Modified());
  }

  void SavesNothingWhileTheQuestionIsOpen() {
    EditMine();
    const std::string theirs = WithText(base_, 1, 0, "they");
    desk_->folder.Write("TEST.MES", theirs);
    desk_->user.Cancel();
    desk_->program.Choose("mnuSave");
    QVERIFY(Status().startsWith(UiText(UiTextId::kNotSaved)));
    QCOMPARE(Slurp(path_), theirs);
    QCOMPARE(desk_->Text1().text(), QStringLiteral("MINE"));
  }

  void OffersToPutAFileBackWhoseSaveWasInterrupted() {
    const std::string half = WithText(base_, 1, 0, "new0");
    const fs::path path = Interrupted(WithText(half, 1, 2, "new2"), half);
    desk_->user.Choose(path);
    desk_->user.Yes();
    desk_->program.Choose("mnuOpen");
    QCOMPARE(desk_->user.FirstBox().title, UiText(UiTextId::kRecoverTitle));
    QCOMPARE(Slurp(path), base_);
    QCOMPARE(desk_->folder.Names(), std::string("TEST.MES bin"));
  }

  void LeavesAFileHalfSavedForGoodWhenThatIsWanted() {
    const std::string half = WithText(base_, 1, 0, "new0");
    const fs::path path = Interrupted(WithText(half, 1, 2, "new2"), half);
    desk_->user.Choose(path);
    desk_->user.No();
    desk_->program.Choose("mnuOpen");
    QCOMPARE(Slurp(path), half);
    QCOMPARE(desk_->folder.Names(), std::string("TEST.MES bin"));
    QCOMPARE(desk_->program.window().windowTitle(), QStringLiteral("TEST.MES"));
  }
};

namespace {
const RegisteredTest kSharedFileTest("shared_file_test", RunTest<SharedFileTest>);
}  // namespace

}  // namespace vendlingua::test

#include "shared_file_test.moc"
