// How long the translator's desk keeps the user waiting: the time that a command takes on the GUI
// thread together with painting the windows that it changes. Prints JSON, times in milliseconds.
// With the argument "memory" it opens the desk on the sample instead, prints the kilobytes that it
// occupies then, and ends.

#include <QApplication>
#include <QLineEdit>
#include <QSettings>
#include <QTableView>
#include <QTest>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "bench/latency_rows.h"
#include "desktop/qt_path.h"
#include "gui/support/dialog_answerer.h"
#include "gui/support/running_program.h"
#include "support/message_files.h"
#include "support/temporary_folder.h"

namespace vendlingua::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSample = "FW0417AB.MES";
constexpr int kRuns = 500;
constexpr int kOpenings = 21;

// As many messages as fit into the 15 bits of a block's length, eight cells wide. Two of three
// letters tell a message from the others.
std::string FileOf4000Messages() {
  MesFile mes;
  mes.width = 8;
  mes.last_msg = 3999;
  mes.stride = 4000;
  mes.names = {"Default", "ITALIANO", "ENGLISH"};
  mes.lang_count = 2;
  std::string content = mes.Bytes();
  constexpr std::size_t kHeader = 24;
  constexpr std::size_t kName = 20;
  for (std::size_t block = 0; block < mes.names.size(); ++block) {
    for (std::size_t message = 0; message <= mes.last_msg; ++message) {
      const std::size_t place = kHeader + block * mes.BlockLength() + kName + message * mes.width;
      const auto letter = [&](std::size_t divisor) {
        return static_cast<char>('a' + message / divisor % 26);
      };
      const char text[] = {static_cast<char>('A' + block), letter(676), letter(26), letter(1)};
      content.replace(place, mes.width, std::string(text, sizeof text) + " tea");
    }
  }
  return content;
}

// The program with a file open in it, from Italian into English.
class OpenedFile {
 public:
  explicit OpenedFile(const std::string& content) : program_(folder_ / "bin") {
    fs::create_directories(folder_ / "bin" / "samples");
    fs::copy_file(fs::path(VENDLINGUA_SAMPLES_FOLDER) / kSample,
                  folder_ / "bin" / "samples" / kSample);
    user_.Choose(folder_.Write("TEST.MES", content));
    program_.Choose("mnuOpen");
    program_.Choose("mnuori(1)");
    program_.Choose("mnuDes(2)");
    QApplication::processEvents();
  }

  // Milliseconds until the desk is painted.
  double OpenDesk() {
    QElapsedTimer timer;
    timer.start();
    program_.Choose("mnuDesk");
    program_.desk().repaint();
    const double time = Milliseconds(timer);
    QApplication::processEvents();
    return time;
  }

  RunningProgram& program() { return program_; }

  std::vector<double> Measure(const std::function<void(int)>& command) {
    std::vector<double> times;
    for (int i = 0; i < kRuns; ++i) {
      QElapsedTimer timer;
      timer.start();
      command(i);
      program_.desk().repaint();
      program_.window().repaint();
      times.push_back(Milliseconds(timer));
      QApplication::processEvents();
    }
    return times;
  }

 private:
  TemporaryFolder folder_;
  DialogAnswerer user_;
  RunningProgram program_;
};

void MeasureOpening(LatencyRows& rows, const std::string& name, const std::string& content) {
  std::vector<double> times;
  for (int i = 0; i < kOpenings; ++i) {
    times.push_back(OpenedFile(content).OpenDesk());
  }
  rows.Add("opening the desk, " + name, times);
}

void MeasureWork(LatencyRows& rows, const std::string& name, const std::string& content) {
  OpenedFile file(content);
  file.OpenDesk();
  auto& find = file.program().GetInDesk<QLineEdit>("DeskFind");
  auto& table = file.program().GetInDesk<QTableView>("DeskTable");
  rows.Add("keystroke in Find, " + name, file.Measure([&](int i) {
    QTest::keyClick(&find, i % 6 < 3 ? Qt::Key_E : Qt::Key_Backspace);
  }));
  find.clear();
  const int pages = 10;
  rows.Add("page of scrolling, " + name, file.Measure([&](int i) {
    QTest::keyClick(&table, i % (2 * pages) < pages ? Qt::Key_PageDown : Qt::Key_PageUp);
  }));
  QTest::keyClick(&table, Qt::Key_F2);
  auto* edit = table.findChild<QLineEdit*>(QStringLiteral("DeskEdit"));
  rows.Add("edit with checks live, " + name, file.Measure([&](int i) {
    QTest::keyClick(edit, i % 6 < 3 ? Qt::Key_Backspace : Qt::Key_T);
  }));
  QTest::keyClick(edit, Qt::Key_Escape);
}

void MeasureAll() {
  LatencyRows rows;
  const std::string sample = Slurp(fs::path(VENDLINGUA_SAMPLES_FOLDER) / kSample);
  const std::string large = FileOf4000Messages();
  MeasureOpening(rows, "455 messages", sample);
  MeasureOpening(rows, "4,000 messages", large);
  MeasureWork(rows, "455 messages", sample);
  MeasureWork(rows, "4,000 messages", large);
  rows.Print();
}

void MeasureMemory() {
  OpenedFile file(Slurp(fs::path(VENDLINGUA_SAMPLES_FOLDER) / kSample));
  file.OpenDesk();
  QTest::qWait(300);
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmRSS:")) {
      std::printf("%d\n", std::stoi(line.substr(6)));
    }
  }
}

}  // namespace
}  // namespace vendlingua::test

int main(int argc, char** argv) {
  const vendlingua::test::TemporaryFolder settings;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                     vendlingua::ToQString(settings.path()));
  const QApplication application(argc, argv);
  if (argc > 1 && argv[1] == std::string_view("memory")) {
    vendlingua::test::MeasureMemory();
  } else {
    vendlingua::test::MeasureAll();
  }
  return 0;
}
