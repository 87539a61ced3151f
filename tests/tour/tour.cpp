// A guided tour through the program with its real windows: opens the samples, edits, saves,
// compiles. It leaves a picture of every step and the files it made in a folder.

#include <fmt/format.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "desktop/qt_path.h"
#include "gui/support/dialog_answerer.h"
#include "gui/support/drag.h"
#include "gui/support/running_program.h"
#include "support/temporary_folder.h"

namespace vendlingua::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kMsxSample = "MP0417AA.MSX";
constexpr const char* kMesSample = "FW0417AB.MES";
constexpr int kLanguagesOfTheBoard = 9;

class Tour {
 public:
  Tour(const fs::path& samples, fs::path out) : out_(std::move(out)), program_(folder_.path()) {
    for (const char* sample : {kMsxSample, kMesSample}) {
      fs::copy_file(samples / sample, out_ / sample, fs::copy_options::overwrite_existing);
    }
  }

  /// False when something came up that no user would expect here.
  bool Run() {
    program_.Choose("smnuLingue(2)");
    Picture(program_.window(), "start");
    EditMsxFile();
    StartNewLanguage();
    CompileFlashFile();
    ShowInformation();
    for (const QString& surprise : answerer_.Surprises()) {
      std::fprintf(stderr, "%s\n", qPrintable(surprise));
    }
    return answerer_.Surprises().isEmpty();
  }

 private:
  void EditMsxFile() {
    Open(kMsxSample);
    Picture(program_.window(), "message-file-opened");
    program_.Choose("mnuori(0)");
    Picture(program_.window(), "origin-chosen");
    program_.OpenMenu("mnuDest");
    program_.Choose("mnuDes(2)");
    Picture(program_.window(), "destination-chosen");
    EditMessage(45, "E08 Tank empty");
    EditMessage(43, "E12 Coffee<60  C");
    Picture(program_.window(), "two-messages-edited");
    program_.Get<QPushButton>("Command1").click();
    DragTheDegreeSign();
    Picture(program_.window(), "character-dragged-from-the-map");
    program_.Choose("mnuSave");
    Picture(program_.window(), "saved");
    program_.Get<QPushButton>("Command1").click();
  }

  // Into the blank that was left for it, before the "C".
  void DragTheDegreeSign() {
    constexpr int kCell = 14;
    auto& Text1 = program_.Get<QLineEdit>("Text1");
    const int cell_width = Text1.width() / (program_.set().LastCol + 1);
    DragCharacter(program_.Get<QLabel>("Label1(222)"), Text1,
                  {kCell * cell_width + cell_width / 2, Text1.height() / 2});
    if (Text1.text() != QStringLiteral("E12 Coffee<60 \u00DFC")) {
      throw std::runtime_error("the dragged character did not arrive: " +
                               Text1.text().toStdString());
    }
  }

  void StartNewLanguage() {
    Open(kMesSample);
    program_.Choose("mnuori(1)");
    program_.OpenMenu("mnuDest");
    program_.Choose("mnuNew(2)");
    EditMessage(14, "Wybierz produkt");
    EditMessage(15, "i wcisnij guzik");
    Picture(program_.window(), "new-language-started");
    answerer_.Type(QStringLiteral("Polski"));
    program_.Choose("mnuSave");
    Picture(program_.window(), "new-language-saved");
  }

  // The eight first languages and the new one.
  void CompileFlashFile() {
    program_.Choose("mnuMake");
    Picture(*program_.compiler(), "compiler-opened");
    for (int language = 1; language < kLanguagesOfTheBoard; ++language) {
      Tick(language);
    }
    Tick(kLanguagesOfTheBoard + 1);
    Picture(*program_.compiler(), "languages-ticked");
    answerer_.Choose(out_ / "FW0417AB.MHX");
    answerer_.Choose(out_ / "FW0417AB.MSX");
    program_.GetInCompiler<QPushButton>("Command1").click();
    Picture(*program_.compiler(), "compiled");
    program_.GetInCompiler<QPushButton>("Command2").click();
  }

  void ShowInformation() {
    program_.Choose("mnuInf");
    Picture(*program_.info(), "program-information");
    program_.info()->close();
  }

  void Open(const char* sample) {
    answerer_.Choose(out_ / sample);
    program_.Choose("mnuOpen");
  }

  void EditMessage(int message, const char* text) {
    program_.Get<QScrollBar>("HScroll1").setValue(message);
    auto& Text1 = program_.Get<QLineEdit>("Text1");
    Text1.selectAll();
    QTest::keyClicks(&Text1, QLatin1String(text));
  }

  void Tick(int language) {
    const std::string name = "Check1(" + std::to_string(language) + ")";
    program_.GetInCompiler<QCheckBox>(name.c_str()).click();
  }

  void Picture(QWidget& window, const char* name) {
    QApplication::processEvents();
    const fs::path file = out_ / fmt::format("{:02}-{}.png", ++pictures_, name);
    window.grab().save(ToQString(file));
    std::printf("%s\n", file.c_str());
  }

  fs::path out_;
  TemporaryFolder folder_;
  DialogAnswerer answerer_;
  RunningProgram program_;
  int pictures_ = 0;
};

}  // namespace
}  // namespace vendlingua::test

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "Usage: %s SAMPLES_FOLDER OUT_FOLDER\n", argv[0]);
    return 2;
  }
  const bool no_display =
      !qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
  if (no_display && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  const QApplication application(argc, argv);
  try {
    const std::filesystem::path out = std::filesystem::absolute(argv[2]);
    std::filesystem::create_directories(out);
    return vendlingua::test::Tour(argv[1], out).Run() ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
