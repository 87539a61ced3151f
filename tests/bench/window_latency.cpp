// How long the windows keep the user waiting: the time that a command takes on the GUI thread
// together with painting the whole window, for many commands of each kind. Prints JSON, times in
// milliseconds.

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QPushButton>
#include <QScrollBar>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "bench/latency_rows.h"
#include "gui/support/dialog_answerer.h"
#include "gui/support/running_program.h"
#include "support/temporary_folder.h"

namespace vendlingua::test {
namespace {

namespace fs = std::filesystem;

constexpr int kMessages = 455;
constexpr int kInterfaceLanguagesShipped = 9;
constexpr int kFileLanguages = 9;
constexpr int kRuns = 500;
constexpr int kCompileRuns = 50;

class Latency {
 public:
  explicit Latency(const fs::path& samples) : samples_(samples), program_(folder_ / "bin") {}

  void Run() {
    Open("MP0417AA.MSX");
    program_.Choose("mnuori(0)");
    program_.Choose("mnuDes(2)");
    auto& HScroll1 = program_.Get<QScrollBar>("HScroll1");
    Measure("page change", [&](int i) { HScroll1.setValue((i + 1) % kMessages); });
    Measure("save", [&](int) { program_.Choose("mnuSave"); });
    Measure("origin language of a .MSX file",
            [&](int i) { Choose("mnuori", i % (kFileLanguages + 1)); });
    Measure("destination language of a .MSX file",
            [&](int i) { Choose("mnuDes", i % kFileLanguages + 1); });
    Open("FW0417AB.MES");
    program_.Choose("mnuori(1)");
    Measure("destination language of a .MES file",
            [&](int i) { Choose("mnuDes", i % kFileLanguages + 1); });
    program_.Get<QPushButton>("Command1").click();
    Measure("page change, map shown", [&](int i) { HScroll1.setValue((i + 1) % kMessages); });
    Measure("interface language",
            [&](int i) { Choose("smnuLingue", i % kInterfaceLanguagesShipped); });
    MeasureCompile();
    Measure("font of the character map", [&](int i) { Choose("mnuLCD", (i + 1) % 4); });
    rows_.Print();
  }

 private:
  void Open(const char* sample) {
    const fs::path file = folder_ / sample;
    fs::copy_file(samples_ / sample, file);
    user_.Choose(file);
    program_.Choose("mnuOpen");
  }

  void Choose(const std::string& array, int index) {
    program_.Choose((array + "(" + std::to_string(index) + ")").c_str());
  }

  void Measure(const char* name, const std::function<void(int)>& command) {
    std::vector<double> times;
    for (int i = 0; i < kRuns; ++i) {
      QElapsedTimer timer;
      timer.start();
      command(i);
      program_.window().repaint();
      times.push_back(Milliseconds(timer));
      QApplication::processEvents();
    }
    rows_.Add(name, times);
  }

  void MeasureCompile() {
    program_.Choose("mnuMake");
    for (int language = 1; language <= kFileLanguages; ++language) {
      const std::string name = "Check1(" + std::to_string(language) + ")";
      program_.GetInCompiler<QCheckBox>(name.c_str()).click();
    }
    const fs::path flash_file = folder_ / "FW0417AB.MHX";
    const fs::path copy = folder_ / "FW0417AB.MSX";
    QElapsedTimer since_dialog;
    user_.on_dialog = [&](QDialog& /*dialog*/) { since_dialog.start(); };
    std::vector<double> times;
    for (int i = 0; i < kCompileRuns; ++i) {
      fs::remove(flash_file);
      fs::remove(copy);
      user_.Choose(flash_file);
      user_.Choose(copy);
      program_.GetInCompiler<QPushButton>("Command1").click();
      program_.compiler()->repaint();
      times.push_back(Milliseconds(since_dialog));
    }
    user_.on_dialog = nullptr;
    program_.compiler()->close();
    rows_.Add("compile nine languages, from the last file dialog on", times);
  }

  fs::path samples_;
  TemporaryFolder folder_;
  DialogAnswerer user_;
  RunningProgram program_;
  LatencyRows rows_;
};

}  // namespace
}  // namespace vendlingua::test

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  vendlingua::test::Latency(VENDLINGUA_SAMPLES_FOLDER).Run();
  return 0;
}
