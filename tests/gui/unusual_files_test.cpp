#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "gui/support/desk_test.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {

/// Files at the edges of what boards have: they open, and what cannot be done with them is said.
class UnusualFilesTest : public DeskTest {
  Q_OBJECT

 private:
  // Opens a source and answers: one language, its name in message 1, memory at &H6000.
  void Import(const std::string& source, const char* memory_length) {
    const auto path = desk_->folder.Write("SOURCE.MES", source);
    desk_->user.Choose(path);
    for (const char* answer : {"1", "1", "&H6000", memory_length}) {
      desk_->user.Type(QLatin1String(answer));
    }
  }

  QString CompileAll(int languages) {
    desk_->program.Choose("mnuMake");
    for (int i = 1; i <= languages; ++i) {
      const QString name = QStringLiteral("Check1(%1)").arg(i);
      desk_->program.GetInCompiler<QCheckBox>(qPrintable(name)).click();
    }
    desk_->user.Choose(desk_->folder / "FW0000AA.hex");
    desk_->program.GetInCompiler<QPushButton>("Command1").click();
    return desk_->program.GetInCompiler<QLabel>("Status").text();
  }

 private slots:
  void MessagesWiderThanTheEditBoxCanBeSeenAndCompiledButNotEdited() {
    const MesFile wide = {.lang_count = 1, .width = 60};
    const auto path = desk_->Open("WIDE.MES", wide.Bytes());
    desk_->program.Choose("mnuori(1)");
    QCOMPARE(desk_->program.Get<QLabel>("Label5(0)").text(), QStringLiteral("1"));
    QCOMPARE(desk_->program.Get<QLabel>("Label5(19)").text(), QStringLiteral("0"));

    desk_->program.Choose("mnuDes(1)");
    QVERIFY(desk_->user.LastBox().text.endsWith(
        Say(UiSentence(UiTextId::kTooWideToEdit, 60, DisplayText::kCells))));
    QVERIFY(!desk_->Text1().isEnabled());

    QVERIFY(CompileAll(1).startsWith(UiText(57)));
    // 13 + 60 + 00 + 31 + 15 x 30 are 374, of which 74 is complemented.
    QCOMPARE(Slurp(desk_->folder / "FW0000AA.hex").substr(0, 44),
             "S1136000" + HexOf("1000000000000000") + "8B\r\n");
    QCOMPARE(Slurp(path), wide.Bytes());
  }

  void ASetOfMoreMessagesThanTheBuiltInTableIsEdited() {
    const MesFile large = {.last_msg = 599, .stride = 600};
    const auto path = desk_->Edit(large);
    desk_->HScroll1().setValue(599);
    desk_->Type("LAST");
    desk_->program.Choose("mnuSave");
    std::string expected = large.Bytes();
    expected.replace(24 + large.BlockLength() + 20 + 599 * large.width, 4, "LAST");
    QCOMPARE(Slurp(path), expected);
  }

  void ASourceMayEndWithTheLineThatEndsItsSection() {
    Import(" DC.B 'ABCD'\r\n DC.B 'EFGH'\r\n ORG $8000\r\n", "&H2000");
    desk_->user.Type(QStringLiteral("Italiano"));
    desk_->user.Choose(desk_->folder / "NEW.MES");
    desk_->program.Choose("mnuOpen");
    QCOMPARE(desk_->program.window().windowTitle(), QStringLiteral("NEW.MES"));
    QCOMPARE(desk_->program.set().MessageCount(), std::size_t{2});
    QCOMPARE(desk_->user.files().size(), std::size_t{2});
  }

  void AMemoryWhoseLanguageBlocksWouldOverlapIsRefusedBeforeAnythingIsWritten() {
    Import(" DC.B 'ABCDEFGHIJKLMNOP'\r\n DC.B 'ABCDEFGHIJKLMNOP'\r\n", "&HFFF0");
    desk_->program.Choose("mnuOpen");
    // 65,520 bytes of 16 are 4,095 slots; 4,096 x 16 and a name are 20 bytes in 16 bits.
    QVERIFY(desk_->user.LastBox().text.endsWith(
        Say(UiSentence(UiTextId::kBlockLengthWraps, 4096, 16, 20))));
    QCOMPARE(desk_->folder.Names(), std::string("SOURCE.MES bin"));
    QVERIFY(!desk_->program.Entry("mnuSave").isEnabled());
  }

  void SavingCompletesAMsxFileWithoutItsLastLineEnd() {
    const std::string whole = MsxFile(1);
    const auto path = desk_->Open("CUT.MSX", whole.substr(0, whole.size() - 2));
    desk_->program.Choose("mnuori(0)");
    desk_->program.Choose("mnuDes(1)");
    desk_->program.Choose("mnuSave");
    QVERIFY(Status().startsWith(UiText(54)));
    QVERIFY(Slurp(path).ends_with(whole.substr(whole.size() - kMsxLine)));
  }

  void TheCompilerNamesALanguageThatEndsBeforeItsLastMessage() {
    MesFile mes;
    mes.names.emplace_back("ENGLISH");
    const std::string content = mes.Bytes();
    desk_->Edit(content.substr(0, content.size() - 2 * mes.width - 1));
    QVERIFY(CompileAll(2).endsWith(Say(UiSentence(UiTextId::kShortLanguages)) +
                                   QStringLiteral(" ENGLISH")));
  }
};

namespace {
const RegisteredTest kUnusualFilesTest("unusual_files_test", RunTest<UnusualFilesTest>);
}  // namespace

}  // namespace vendlingua::test

#include "unusual_files_test.moc"
