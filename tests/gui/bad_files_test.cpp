#include <QLabel>
#include <algorithm>
#include <filesystem>
#include <random>
#include <string>

#include "gui/support/desk_test.h"
#include "gui/support/looks.h"
#include "gui/support/registered_test.h"
#include "support/ordinary_user.h"

namespace vendlingua::test {
namespace {

namespace fs = std::filesystem;

std::string Replaced(std::string text, std::string_view what, std::string_view with) {
  for (std::size_t at = text.find(what); at != std::string::npos;
       at = text.find(what, at + with.size())) {
    text.replace(at, what.size(), with);
  }
  return text;
}

// A good ".MES" file but for the header field at `offset`.
std::string WithField(std::size_t offset, std::string_view digits) {
  return MesFile().Bytes().replace(offset, digits.size(), digits);
}

// The same bytes on every machine. Those in `without` are left out.
std::string Noise(unsigned seed, std::string_view without) {
  constexpr std::size_t kBytes = 300;
  std::mt19937 random(seed);
  std::string bytes;
  while (bytes.size() < kBytes) {
    const char byte = static_cast<char>(random() & 0xFFU);
    if (without.find(byte) == std::string_view::npos) {
      bytes += byte;
    }
  }
  return bytes;
}

void AddRow(const std::string& name, const std::string& content) {
  QTest::newRow(name.c_str()) << content;
}

}  // namespace

class BadFilesTest : public DeskTest {
  Q_OBJECT

 private:
  QStringList looks_;

  void EditAFile() {
    desk_->Edit(MesFile());
    desk_->HScroll1().setValue(1);
    looks_ = LooksOf(desk_->program.window());
  }

  // One box said that `path` cannot be taken; the file that is being edited still is.
  void ExpectRefused(const fs::path& path) {
    QCOMPARE(desk_->user.boxes().size(), std::size_t{1});
    const DialogAnswerer::Box box = desk_->user.FirstBox();
    QCOMPARE(box.title, QStringLiteral("ERROR"));
    QCOMPARE(box.icon, QMessageBox::Critical);
    QVERIFY2(box.text.startsWith(QString::fromStdString(path.string() + ": ")),
             qPrintable(box.text));
    ExpectAsBefore();
  }

  void ExpectAsBefore() {
    QCOMPARE(LooksOf(desk_->program.window()), looks_);
    desk_->program.Choose("mnuSave");
    const fs::path edited = desk_->folder / "TEST.MES";
    QCOMPARE(Status(), UiText(54) + QString::fromStdString(" " + edited.string()));
    QCOMPARE(Slurp(edited), MesFile().Bytes());
  }

  void OpenRefused(std::string_view name) {
    QFETCH(std::string, content);
    EditAFile();
    const fs::path path = desk_->Open(name, content);
    ExpectRefused(path);
    QCOMPARE(Slurp(path), content);
  }

  void OpenTaken(std::string_view name) {
    QFETCH(std::string, content);
    EditAFile();
    const fs::path path = desk_->Open(name, content);
    QCOMPARE(desk_->user.boxes().size(), std::size_t{0});
    QCOMPARE(desk_->program.window().windowTitle(), QString::fromStdString(std::string(name)));
    QVERIFY(desk_->program.Entry("mnuOrig").isEnabled());
    QCOMPARE(Slurp(path), content);
  }

 private slots:
  void RefusesABinaryFile_data() {
    QTest::addColumn<std::string>("content");
    // The header ends with byte 24, the name of the first language with byte 44.
    for (std::size_t size = 0; size < 44; ++size) {
      AddRow("cut behind byte " + std::to_string(size), MesFile().Bytes().substr(0, size));
    }
    for (unsigned seed = 0; seed < 5; ++seed) {
      AddRow("noise " + std::to_string(seed), '\x02' + Noise(seed, ""));
    }
    AddRow("no languages", MesFile{.lang_count = 0}.Bytes());
    AddRow("514 messages", MesFile{.last_msg = 513}.Bytes());
    AddRow("65536 messages", WithField(8, "FFFF"));
    AddRow("blocks of a negative length", WithField(20, "FFFF"));
    AddRow("flags that are no number", WithField(2, "0G"));
    AddRow("a start address with a sign", WithField(12, "-0006000"));
  }
  void RefusesABinaryFile() { OpenRefused("BAD.MES"); }

  void TakesABinaryFileOfUnusualDimensions_data() {
    QTest::addColumn<std::string>("content");
    AddRow("cut behind the name of its only language", MesFile().Bytes().substr(0, 44));
    AddRow("31 languages", MesFile{.lang_count = 31}.Bytes());
    AddRow("40 cells", MesFile{.width = 40}.Bytes());
    AddRow("513 messages", MesFile{.last_msg = 512}.Bytes());
    AddRow("all flags", WithField(2, "FF"));
    AddRow("the highest name message", WithField(4, "FFFF"));
    AddRow("the highest address", WithField(12, "FFFFFFFF"));
  }
  void TakesABinaryFileOfUnusualDimensions() { OpenTaken("ODD.MES"); }

  void SaysThatALanguageEndsInsideAMessage() {
    EditAFile();
    const MesFile mes;
    const std::string content = mes.Bytes();
    // The second message of the first language lacks its last cell.
    const fs::path path =
        desk_->Open("CUT.MES", content.substr(0, 24 + mes.BlockLength() + 20 + 7));
    desk_->program.Choose("mnuori(0)");
    desk_->program.Choose("mnuDes(1)");
    QCOMPARE(desk_->user.boxes().size(), std::size_t{0});
    QCOMPARE(Status(), Say(UiSentence(UiTextId::kLanguageEndsEarly, 1)));
    desk_->program.Choose("mnuSave");
    QCOMPARE(Slurp(path), content.substr(0, 24 + mes.BlockLength() + 20 + 7) + std::string(5, ' '));
  }

  void RefusesASource_data() {
    QTest::addColumn<std::string>("content");
    const std::string text = " DC.B 'ABCD'\r\n";
    AddRow("lone carriage returns", Replaced(text + text, "\r\n", "\r"));
    AddRow("one lone carriage return", text + " DC.B 'AB\rD'\r\n");
    AddRow("no text", " RTS\r\n");
    AddRow("one quote", text + " DC.B 'ABCD\r\n");
    AddRow("256 characters", " DC.B '" + std::string(256, 'A') + "'\r\n");
    AddRow("a binary file of 32 languages", MesFile{.lang_count = 32}.Bytes());
    for (unsigned seed = 0; seed < 5; ++seed) {
      AddRow("noise without texts " + std::to_string(seed), 'A' + Noise(seed, "'\""));
    }
  }
  void RefusesASource() { OpenRefused("SOURCE.MES"); }

  void RefusesAMsxFile_data() {
    QTest::addColumn<std::string>("content");
    const std::string good = MsxFile(1);
    const std::string name = S2Line(0xFF0000 + 169 * 16, MsxMessage(1, 169));
    AddRow("lone carriage returns", Replaced(good, "\r\n", "\r"));
    AddRow("one lone carriage return", MsxFile(0) + "S2\r\r\n");
    AddRow("line ends without carriage returns", Replaced(good, "\r\n", "\n"));
    AddRow("a name that is no hexadecimal",
           Replaced(good, name, name.substr(0, 20) + "G" + name.substr(21)));
    AddRow("a name of 15 bytes", Replaced(good, name, name.substr(0, 40)));
  }
  void RefusesAMsxFile() { OpenRefused("BAD.MSX"); }

  void TakesAMsxFileOfUnusualLines_data() {
    QTest::addColumn<std::string>("content");
    AddRow("cut behind the model number", MsxFile(1).substr(0, 20));
    AddRow("cut before the first name", MsxFile(1).substr(0, 1000));
    AddRow("a last line without its end", MsxFile(1).substr(0, MsxFile(1).size() - 2));
    AddRow("noise behind the header", MsxFile(0) + Noise(1, "\r\n"));
  }
  void TakesAMsxFileOfUnusualLines() { OpenTaken("ODD.MSX"); }

  void SaysThatAMsxFileIsNotManaged_data() {
    QTest::addColumn<std::string>("content");
    // The model number ends with column 20.
    for (std::size_t size = 0; size < 20; ++size) {
      AddRow("cut behind byte " + std::to_string(size), MsxFile(1).substr(0, size));
    }
    for (unsigned seed = 0; seed < 5; ++seed) {
      AddRow("noise " + std::to_string(seed), '\x02' + Noise(seed, ""));
    }
    AddRow("a binary message file", MesFile().Bytes());
    AddRow("no header record", MsxFile(1).substr(MsxFile(0).size()));
    AddRow("another firmware", MsxFile(1, "0418"));
    AddRow("another firmware further down", MsxFile(0) + MsxFile(1, "0418"));
  }
  void SaysThatAMsxFileIsNotManaged() {
    QFETCH(std::string, content);
    EditAFile();
    const fs::path path = desk_->Open("OTHER.MSX", content);
    QCOMPARE(desk_->user.boxes().size(), std::size_t{1});
    const DialogAnswerer::Box box = desk_->user.FirstBox();
    QCOMPARE(box.text, QStringLiteral(" File not managed ! "));
    QCOMPARE(box.title, QStringLiteral("ERROR"));
    QCOMPARE(box.icon, QMessageBox::Critical);
    // No file is open any more, and nothing can be saved.
    for (const char* entry : {"mnuOrig", "mnuDest", "mnuMake", "mnuSave", "mnuSaas", "mnuTLCD"}) {
      QVERIFY2(!desk_->program.Entry(entry).isEnabled(), entry);
    }
    for (const char* entry : {"mnuori(1)", "mnuDes(1)", "mnuNew(1)"}) {
      QVERIFY2(!desk_->program.Entry(entry).isVisible(), entry);
    }
    QVERIFY(!desk_->Text1().isEnabled());
    QCOMPARE(desk_->Text1().text(), QString());
    QCOMPARE(desk_->program.Get<QLabel>("Label6").text(), QStringLiteral("0"));
    QCOMPARE(Slurp(path), content);
  }

  void TheDialogEntersAFolderThatIsNamedLikeAFile_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("MES") << QStringLiteral("X.MES");
    QTest::newRow("MSX") << QStringLiteral("X.MSX");
  }
  void TheDialogEntersAFolderThatIsNamedLikeAFile() {
    QFETCH(QString, name);
    EditAFile();
    const fs::path path = desk_->folder / name.toStdString();
    fs::create_directory(path);
    desk_->user.Choose(path);
    desk_->user.Cancel();
    desk_->program.Choose("mnuOpen");
    QCOMPARE(desk_->user.files().back().folder, QString::fromStdString(path.string()));
    QCOMPARE(desk_->user.boxes().size(), std::size_t{0});
    ExpectAsBefore();
  }

  void TheDialogRefusesANameThatIsNotThere() {
    EditAFile();
    desk_->user.Choose(desk_->folder / "NONE.MES");
    desk_->user.Cancel();
    desk_->program.Choose("mnuOpen");
    QCOMPARE(desk_->user.boxes().size(), std::size_t{1});
    QVERIFY(desk_->user.FirstBox().text.startsWith(QStringLiteral("NONE.MES")));
    ExpectAsBefore();
  }

  void RefusesWhatIsNoRegularFile() {
    EditAFile();
    const fs::path path = desk_->folder / "ENDLESS.MES";
    fs::create_symlink("/dev/zero", path);
    desk_->Open(path);
    ExpectRefused(path);
  }

  void RefusesAFileThatMayNotBeRead() {
    EditAFile();
    const fs::path path = desk_->folder.Write("LOCKED.MES", MesFile().Bytes());
    fs::permissions(path, fs::perms::none);
    {
      const OrdinaryUser user;
      if (!user.holds()) {
        QSKIP("this user may read every file");
      }
      desk_->Open(path);
    }
    ExpectRefused(path);
  }
};

namespace {
const RegisteredTest kBadFilesTest("bad_files_test", RunTest<BadFilesTest>);
}  // namespace

}  // namespace vendlingua::test

#include "bad_files_test.moc"
