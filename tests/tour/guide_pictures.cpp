// Takes the pictures of the user's guide and of the README from the real windows, which do what the
// guide tells.

#include <fmt/format.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPalette>
#include <QProcess>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>
#include <cstdio>
#include <filesystem>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <utility>

#include "desktop/qt_path.h"
#include "gui/support/dialog_answerer.h"
#include "gui/support/running_program.h"
#include "support/message_files.h"
#include "support/temporary_folder.h"

namespace vendlingua::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFile = "FW0417AB.MES";
constexpr const char* kOlderFile = "FW0267AA.MES";
constexpr const char* kNewerFile = "FW0268AA.MES";

enum Page { kSuggestionsPage, kFindingsPage, kLanguagesPage };
constexpr int kToDo = 1;  // of the filter

constexpr int kInterfaceLanguages = 9;
constexpr int kEnglish = 2;
constexpr int kItalian = 5;

struct Tools {
  fs::path samples;
  fs::path cli;
};

// Replaces what stands once in `content`.
void Change(std::string& content, std::string_view before, std::string_view after) {
  const std::size_t place = content.find(before);
  if (place == std::string::npos) {
    throw std::runtime_error(fmt::format("there is no {}", before));
  }
  content.replace(place, before.size(), after);
}

QPalette DarkPalette() {
  constexpr QRgb kWindow = 0xFF2B2B2B;
  constexpr QRgb kBase = 0xFF1E1E1E;
  constexpr QRgb kText = 0xFFE6E6E6;
  constexpr QRgb kFaint = 0xFF8A8A8A;
  constexpr QRgb kHighlight = 0xFF2A6FB0;
  QPalette palette(QColor{kText}, QColor{kWindow}, QColor{kFaint}, QColor{kBase}, QColor{kFaint},
                   QColor{kText}, QColor{kText}, QColor{kBase}, QColor{kWindow});
  palette.setColor(QPalette::AlternateBase, QColor(kWindow));
  palette.setColor(QPalette::Button, QColor(kWindow));
  palette.setColor(QPalette::Highlight, QColor(kHighlight));
  palette.setColor(QPalette::HighlightedText, QColor(kText));
  palette.setColor(QPalette::PlaceholderText, QColor(kFaint));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, QColor(kFaint));
  }
  return palette;
}

class GuidePictures {
 public:
  GuidePictures(Tools tools, fs::path out, int interface_language)
      : tools_(std::move(tools)), out_(std::move(out)), program_(folder_ / "bin") {
    fs::create_directories(out_);
    fs::create_directories(folder_ / "bin" / "samples");
    fs::copy_file(tools_.samples / kFile, folder_ / "bin" / "samples" / kFile);
    program_.Choose(fmt::format("smnuLingue({})", interface_language).c_str());
  }

  // More than the guide shows, to be looked at.
  void TakeAll() {
    FirstSteps();
    Take();
    SecondReference();
    Information();
    Replacement();
    Conflict();
  }

  void Take() {
    Editor();
    FirstTranslation();
    NewFirmware();
    Agency();
    Release();
    if (const QStringList surprises = user_.Surprises(); !surprises.isEmpty()) {
      throw std::runtime_error(surprises.join(QLatin1Char('\n')).toStdString());
    }
  }

 private:
  // What the status line says to do next.
  void FirstSteps() {
    Save(program_.window(), "no-file");
    user_.Choose(Sample(kFile));
    program_.Choose("mnuOpen");
    Save(program_.window(), "no-origin");
    program_.Choose("mnuori(1)");
    Save(program_.window(), "no-destination");
    fs::remove(folder_ / kFile);
  }

  void SecondReference() {
    program_.Choose("mnuDesk");
    auto& box = Part<QComboBox>("DeskSecondReference");
    box.setCurrentIndex(5);
    emit box.activated(5);
    Save(program_.desk(), "second-reference");
    program_.desk().close();
  }

  void Information() {
    program_.Choose("mnuInf");
    Save(*program_.info(), "information");
    program_.info()->close();
  }

  void Replacement() {
    Open(folder_ / kOlderFile, 3);
    program_.Choose("mnuDesk");
    Part<QLineEdit>("DeskFind").setText(QStringLiteral("e"));
    Part<QLineEdit>("DeskReplaceBy").setText(QStringLiteral("ee"));
    SavePreview("replace", "DeskReplace");
    Part<QLineEdit>("DeskFind").clear();
    program_.Choose("mnuSave");
    program_.desk().close();
  }

  // Another program saves another text of the message that is being edited.
  void Conflict() {
    const fs::path file = folder_ / kOlderFile;
    Open(file, 2);
    Translate(2, "    Diagnosis");
    std::string content = Slurp(file);
    Change(content, "  Diagnostics   ", "Self-diagnostics");
    folder_.Write(kOlderFile, content);
    user_.on_dialog = [this](QDialog& dialog) {
      if (dialog.objectName() == QStringLiteral("ConflictBox")) {
        Save(dialog, "conflict");
      }
    };
    user_.Click(QStringLiteral("KeepMine"));
    program_.Choose("mnuSave");
    user_.on_dialog = nullptr;
  }

  void Editor() {
    Open(Sample(kFile), 2);
    program_.Get<QPushButton>("Command1").click();
    Translate(43, "E12 Coffee<60 \u00B0C");
    Save(program_.window(), "window");
    program_.Get<QPushButton>("Command1").click();
    program_.Choose("mnuSave");
  }

  // A language that the file lacks; somebody has translated another file into it before.
  void FirstTranslation() {
    user_.Choose(Sample(kOlderFile));
    program_.Choose("mnuOpen");
    program_.Choose("mnuori(1)");
    user_.Type(QStringLiteral("NEDERLANDS"));
    program_.Choose("mnuNewLanguage");
    program_.Choose("mnuDesk");
    Translate(0, "    MP0417AA    ");
    Translate(1, "    Rev.  .");
    Translate(3, "Krediet");
    Translate(4, "Prijs");
    Translate(5, "  Even geduld   ");
    Translate(9, "Volledige test");
    Translate(10, "   Watertest    ");
    GoTo(6);
    Part<QTabWidget>("DeskPages").setCurrentIndex(kSuggestionsPage);
    Save(program_.desk(), "desk");
    GoTo(9);
    Part<QTabWidget>("DeskPages").setCurrentIndex(kFindingsPage);
    Save(Side(), "findings");
    Part<QTabWidget>("DeskPages").setCurrentIndex(kSuggestionsPage);
    SavePreview("pretranslate", "DeskPretranslate");
    program_.Choose("mnuSave");
  }

  void NewFirmware() {
    std::string source = Slurp(tools_.samples / "firmware.src");
    Change(source, "'    Attendi     '",
           "'   Benvenuti    '\r\n        DC.B    '    Attendi     '");
    Change(source, "'Non disponibile '", "'Ora non disponib'");
    Change(source, "'Prezzi scontati '", "'Prezzo scontato '");
    const fs::path file = folder_.Write("firmware.src", source);
    const fs::path newer = folder_ / kNewerFile;
    QProcess update;
    update.start(
        ToQString(tools_.cli),
        {QStringLiteral("update"), ToQString(file), QStringLiteral("--from"),
         ToQString(tools_.samples / kOlderFile), QStringLiteral("--output"), ToQString(newer)});
    if (!update.waitForFinished() || update.exitCode() != 0) {
      throw std::runtime_error(update.readAllStandardError().toStdString());
    }
    Open(newer, 2);
    program_.Choose("mnuDesk");
    Part<QComboBox>("DeskFilter").setCurrentIndex(kToDo);
    GoTo(14);
    Save(program_.desk(), "new-firmware");
    Part<QComboBox>("DeskFilter").setCurrentIndex(0);
  }

  void Agency() {
    Open(folder_ / kFile, 3);
    Part<QTabWidget>("DeskPages").setCurrentIndex(kLanguagesPage);
    auto& languages = Part<QTreeWidget>("DeskLanguages");
    languages.setCurrentItem(languages.topLevelItem(2));
    Save(Side(), "languages");
    const fs::path table = folder_ / "german.csv";
    user_.Choose(table);
    Part<QPushButton>("DeskLanguageExport").click();
    std::string content = Slurp(table);
    Change(content, "Diagnose", "Diagnosen");
    Change(content, "Bitte warten", "Einen Moment");
    user_.Choose(folder_.Write("german.csv", content));
    SavePreview("import", "DeskLanguageImport");
    program_.Choose("mnuSave");
    Part<QTabWidget>("DeskPages").setCurrentIndex(kSuggestionsPage);
    program_.desk().close();
  }

  void Release() {
    program_.Choose("mnuMake");
    for (int language = 1; language <= 9; ++language) {
      const std::string name = fmt::format("Check1({})", language);
      program_.GetInCompiler<QCheckBox>(name.c_str()).click();
    }
    user_.Choose(folder_ / "FW0417AB.MHX");
    user_.Choose(folder_ / "FW0417AB.MSX");
    program_.GetInCompiler<QPushButton>("Command1").click();
    Save(*program_.compiler(), "compiler");
    program_.GetInCompiler<QPushButton>("Command2").click();
  }

  fs::path Sample(const char* name) {
    fs::path copy = folder_ / name;
    fs::copy_file(tools_.samples / name, copy);
    return copy;
  }

  void Open(const fs::path& file, int destination) {
    user_.Choose(file);
    program_.Choose("mnuOpen");
    program_.Choose("mnuori(1)");
    program_.Choose(fmt::format("mnuDes({})", destination).c_str());
  }

  template <typename Control>
  Control& Part(const char* name) {
    return program_.GetInDesk<Control>(name);
  }

  QWidget& Side() { return *Part<QTabWidget>("DeskPages").parentWidget(); }

  void GoTo(int message) { program_.Get<QScrollBar>("HScroll1").setValue(message); }

  void Translate(int message, const char* text) {
    GoTo(message);
    auto& Text1 = program_.Get<QLineEdit>("Text1");
    Text1.selectAll();
    QTest::keyClicks(&Text1, QString::fromUtf8(text));
  }

  // Of the dialog that a button of the desk opens, which is accepted then.
  void SavePreview(const char* name, const char* button) {
    user_.on_dialog = [&](QDialog& dialog) {
      if (dialog.objectName() == QStringLiteral("DeskPreview")) {
        Save(dialog, name);
      }
    };
    user_.Accept();
    Part<QPushButton>(button).click();
    user_.on_dialog = nullptr;
  }

  void Save(QWidget& window, const char* name) {
    QApplication::processEvents();
    const fs::path file = out_ / fmt::format("{}.png", name);
    constexpr int kSmallest = 0;
    if (!window.grab()
             .toImage()
             .convertToFormat(QImage::Format_RGB888)
             .save(ToQString(file), "PNG", kSmallest)) {
      throw std::runtime_error(file.string() + " cannot be written");
    }
    std::printf("%s\n", file.c_str());
  }

  Tools tools_;
  fs::path out_;
  TemporaryFolder folder_;
  DialogAnswerer user_;
  RunningProgram program_;
};

}  // namespace
}  // namespace vendlingua::test

int main(int argc, char** argv) {
  using vendlingua::test::GuidePictures;
  const vendlingua::test::TemporaryFolder settings;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                     vendlingua::ToQString(settings.path()));
  const QApplication application(argc, argv);
  if (argc < 4) {
    std::fprintf(stderr, "Usage: %s SAMPLES_FOLDER CLI OUT_FOLDER [every-language] [dark]\n",
                 argv[0]);
    return 2;
  }
  QApplication::setCursorFlashTime(0);
  if (QApplication::arguments().contains(QStringLiteral("dark"))) {
    QApplication::setPalette(vendlingua::test::DarkPalette());
  }
  try {
    const std::filesystem::path out = std::filesystem::absolute(argv[3]);
    if (QApplication::arguments().contains(QStringLiteral("every-language"))) {
      for (int language = 0; language < vendlingua::test::kInterfaceLanguages; ++language) {
        GuidePictures({argv[1], argv[2]}, out / std::to_string(language), language).TakeAll();
      }
    } else {
      GuidePictures({argv[1], argv[2]}, out / "en", vendlingua::test::kEnglish).Take();
      GuidePictures({argv[1], argv[2]}, out / "it", vendlingua::test::kItalian).Take();
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
  return 0;
}
