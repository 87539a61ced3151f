#include <QLabel>
#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>

#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"
#include "support/full_disk.h"
#include "support/ordinary_user.h"

namespace vendlingua::test {
namespace {

namespace fs = std::filesystem;

QString SystemReason(int error_number) {
  return QString::fromStdString(std::generic_category().message(error_number));
}

// MesFile with the first message of its first language replaced.
std::string EditedMes() {
  const MesFile mes;
  return mes.Bytes().replace(24 + mes.BlockLength() + 20, 4, "EDIT");
}

MesFile TwoLanguages() { return {.names = {"Default", "ITALIANO", "ENGLISH"}}; }

std::string PaddedMessage(std::string text) {
  text.resize(16, ' ');
  return text;
}

// Replaces a message of the first language of MsxFile(2).
void ReplaceMessage(std::string& file, std::size_t message, const std::string& text) {
  const std::size_t address = 0xFF0000 + message * 16;
  const std::string line = S2Line(address, MsxMessage(1, message));
  file.replace(file.find(line), line.size(), S2Line(address, PaddedMessage(text)));
}

}  // namespace

class FailedSavesTest : public DeskTest {
  Q_OBJECT

 private:
  fs::path EditAMessage() {
    fs::path path = desk_->Edit(MesFile());
    desk_->Type("EDIT");
    return path;
  }

  // The status line says why nothing was saved; the message is still there to be saved elsewhere.
  void ExpectNotSaved(const QString& reason) {
    QVERIFY2(Status().startsWith(UiText(55)), qPrintable(Status()));
    QVERIFY2(Status().contains(reason), qPrintable(Status()));
    QCOMPARE(desk_->Text1().text(), QStringLiteral("EDIT"));
    QVERIFY(desk_->Text1().isEnabled());
    QVERIFY(desk_->program.Entry("mnuSaas").isEnabled());
  }

  void ExpectCopy(const std::string& content) {
    const fs::path copy = desk_->folder / "COPY.MES";
    desk_->user.Choose(copy);
    desk_->program.Choose("mnuSaas");
    QCOMPARE(Status(), UiText(54) + QString::fromStdString(" " + copy.string()));
    QCOMPARE(Slurp(copy), content);
  }

  void ExpectSavedElsewhere() { ExpectCopy(EditedMes()); }

 private slots:
  void SaysThatTheDiskIsFull() {
    const fs::path path = EditAMessage();
    {
      const FullDisk disk(24 + MesFile().BlockLength());
      desk_->program.Choose("mnuSave");
    }
    ExpectNotSaved(SystemReason(EFBIG));
    QCOMPARE(Slurp(path), MesFile().Bytes());
    QCOMPARE(desk_->user.boxes().size(), std::size_t{0});
    ExpectSavedElsewhere();
    QCOMPARE(Slurp(path), MesFile().Bytes());
  }

  void ALanguageThatFindsNoRoomOnTheDiskStaysNew() {
    const fs::path path = desk_->Edit(MesFile());
    desk_->program.Choose("mnuNew(1)");
    desk_->Type("EDIT");
    desk_->user.Type(QStringLiteral("deutsch"));
    {
      const FullDisk disk(MesFile().Bytes().size());
      desk_->program.Choose("mnuSave");
    }
    ExpectNotSaved(SystemReason(EFBIG));
    QCOMPARE(Slurp(path), MesFile().Bytes());
    QVERIFY(!desk_->program.Entry("mnuDes(2)").isVisible());
    desk_->user.Type(QStringLiteral("polski"));
    desk_->program.Choose("mnuSave");
    QCOMPARE(desk_->program.Entry("mnuDes(2)").text(), QStringLiteral("POLSKI"));
    QCOMPARE(Slurp(path), MesFile().Bytes() + "POLSKI              EDIT11111222");
  }

  void PutsAMsxFileBackThatCouldBeWrittenInPartOnly() {
    const fs::path path = desk_->EditMsx();
    desk_->Type("EDIT");
    desk_->HScroll1().setValue(200);
    desk_->Type("EDIT");
    {
      const FullDisk disk(MsxFile(2).find(S2Line(0xFF0000 + 160, MsxMessage(1, 10))));
      desk_->program.Choose("mnuSave");
    }
    ExpectNotSaved(SystemReason(EFBIG));
    QCOMPARE(Slurp(path), MsxFile(2));
    desk_->program.Choose("mnuSave");
    QVERIFY(Status().startsWith(UiText(54)));
    std::string saved = MsxFile(2);
    ReplaceMessage(saved, 0, "EDIT");
    ReplaceMessage(saved, 200, "EDIT");
    QCOMPARE(Slurp(path), saved);
  }

  void ACopyThatFindsNoRoomOnTheDiskLeavesEveryFileAsItWas() {
    const fs::path path = EditAMessage();
    desk_->folder.Write("COPY.MES", "an older file");
    desk_->user.Choose(desk_->folder / "COPY.MES");
    desk_->user.Yes();
    {
      const FullDisk disk(10);
      desk_->program.Choose("mnuSaas");
    }
    QCOMPARE(desk_->user.LastBox().title, QStringLiteral("ERROR"));
    QVERIFY(desk_->user.LastBox().text.contains(QStringLiteral("COPY.MES")));
    QCOMPARE(Slurp(desk_->folder / "COPY.MES"), std::string("an older file"));
    QCOMPARE(desk_->folder.Names(), std::string("COPY.MES TEST.MES bin"));
    QCOMPARE(desk_->program.window().windowTitle(), QStringLiteral("TEST.MES"));
    QVERIFY(desk_->Modified());
    desk_->program.Choose("mnuSave");
    QCOMPARE(Slurp(path), EditedMes());
  }

  void SaysThatTheFileIsReadOnly() {
    const fs::path path = EditAMessage();
    fs::permissions(path, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    {
      const OrdinaryUser user;
      if (!user.holds()) {
        QSKIP("this user may write every file");
      }
      desk_->program.Choose("mnuSave");
    }
    ExpectNotSaved(SystemReason(EACCES));
    QCOMPARE(Slurp(path), MesFile().Bytes());
    ExpectSavedElsewhere();
  }

  void KeepsTheEditsWhenTheFileIsGone() {
    const fs::path path = EditAMessage();
    fs::remove(path);
    desk_->program.Choose("mnuSave");
    ExpectNotSaved(SystemReason(ENOENT));
    QVERIFY(!fs::exists(path));
    ExpectSavedElsewhere();
  }

  void KeepsTheEditsWhenAFolderTookThePlaceOfTheFile() {
    const fs::path path = EditAMessage();
    fs::remove(path);
    fs::create_directory(path);
    desk_->program.Choose("mnuSave");
    ExpectNotSaved(SystemReason(EISDIR));
    ExpectSavedElsewhere();
  }

  void AFileThatIsGoneCanBeSavedUnderItsOwnName() {
    const fs::path path = EditAMessage();
    fs::remove(path);
    desk_->user.Choose(path);
    desk_->program.Choose("mnuSaas");
    QCOMPARE(Slurp(path), EditedMes());
  }

  void ACopyOfAFileThatIsGoneHoldsWhatWasSavedInOtherLanguages() {
    const MesFile mes = TwoLanguages();
    const fs::path path = desk_->Edit(mes);
    desk_->Type("EDIT");
    desk_->program.Choose("mnuSave");
    const std::string saved = Slurp(path);
    desk_->program.Choose("mnuDes(2)");
    desk_->Type("MORE");
    fs::remove(path);
    ExpectCopy(std::string(saved).replace(24 + 2 * mes.BlockLength() + 20, 4, "MORE"));
    QVERIFY(saved != mes.Bytes());
  }

  void ACopyOfAFileThatIsGoneHoldsTheNewNamesOfOtherLanguages() {
    const MesFile mes = TwoLanguages();
    const fs::path path = desk_->Edit(mes);
    desk_->program.Choose("mnuMake");
    desk_->user.Type(QStringLiteral("polski"));
    desk_->user.Yes();
    QTest::mouseClick(&desk_->program.GetInCompiler<QLabel>("Label1(2)"), Qt::RightButton);
    desk_->program.compiler()->close();
    fs::remove(path);
    ExpectCopy(mes.Bytes().replace(24 + 2 * mes.BlockLength(), 7, "POLSKI "));
  }

  void AsksAgainAboutChangesThatCouldNotBeSaved() {
    fs::remove(EditAMessage());
    desk_->user.Yes();
    QVERIFY(!desk_->program.window().close());
    desk_->user.No();
    QVERIFY(desk_->program.window().close());
    QCOMPARE(desk_->user.boxes().size(), std::size_t{2});
  }

  void WritesNothingIntoAMesFileWhoseHeaderIsGone() {
    const fs::path path = EditAMessage();
    fs::resize_file(path, 23);
    desk_->program.Choose("mnuSave");
    ExpectNotSaved(Say(UiSentence(UiTextId::kHeaderIsLost, 23)));
    QCOMPARE(fs::file_size(path), std::uintmax_t{23});
    ExpectSavedElsewhere();
  }

  void WritesNothingIntoAMsxFileThatWasShortened() {
    const fs::path path = desk_->EditMsx();
    desk_->Type("EDIT");
    const std::string whole = MsxFile(2);
    const std::string shortened =
        whole.substr(0, whole.find(S2Line(0xFF0000 + 100 * 16, MsxMessage(1, 100))));
    desk_->folder.Write("TEST.MSX", shortened);
    desk_->program.Choose("mnuSave");
    ExpectNotSaved(Say(UiSentence(UiTextId::kFileWasReplaced)));
    QCOMPARE(Slurp(path), shortened);
    desk_->user.Choose(desk_->folder / "COPY.MSX");
    desk_->program.Choose("mnuSaas");
    std::string expected = whole;
    ReplaceMessage(expected, 0, "EDIT");
    QCOMPARE(Slurp(desk_->folder / "COPY.MSX"), expected);
  }

  void WritesNothingIntoAMsxFileThatGotOtherLineEnds() {
    const fs::path path = desk_->EditMsx();
    desk_->Type("EDIT");
    std::string content = MsxFile(2);
    content.erase(std::remove(content.begin(), content.end(), '\r'), content.end());
    desk_->folder.Write("TEST.MSX", content);
    desk_->program.Choose("mnuSave");
    ExpectNotSaved(Say(UiSentence(UiTextId::kFileWasReplaced)));
    QCOMPARE(Slurp(path), content);
  }

  void WritesNothingIntoAMesFileThatWasShortened() {
    const fs::path path = EditAMessage();
    const std::string shortened = MesFile().Bytes().substr(0, MesFile().Bytes().size() - 10);
    fs::resize_file(path, shortened.size());
    desk_->program.Choose("mnuSave");
    ExpectNotSaved(Say(UiSentence(UiTextId::kFileWasReplaced)));
    QCOMPARE(Slurp(path), shortened);
    ExpectSavedElsewhere();
  }

  void SaysThatTheFolderIsGone() {
    const fs::path folder = desk_->folder / "stick";
    fs::create_directory(folder);
    desk_->Edit(MesFile());
    desk_->user.Choose(folder / "A.MES");
    desk_->program.Choose("mnuSaas");
    fs::remove_all(folder);
    desk_->Type("EDIT");
    desk_->program.Choose("mnuSave");
    QCOMPARE(desk_->user.LastBox().text, QStringLiteral(" Directory not ready"));
    QCOMPARE(desk_->user.LastBox().icon, QMessageBox::Critical);
    ExpectNotSaved(SystemReason(ENOENT));
  }
};

namespace {
const RegisteredTest kFailedSavesTest("failed_saves_test", RunTest<FailedSavesTest>);
}  // namespace

}  // namespace vendlingua::test

#include "failed_saves_test.moc"
