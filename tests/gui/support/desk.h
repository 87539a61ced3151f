#ifndef VENDLINGUA_TESTS_GUI_SUPPORT_DESK_H_
#define VENDLINGUA_TESTS_GUI_SUPPORT_DESK_H_

#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <filesystem>
#include <string>
#include <string_view>

#include "core/document/display_code.h"
#include "core/presentation/view_state.h"
#include "gui/support/dialog_answerer.h"
#include "gui/support/running_program.h"
#include "support/message_files.h"
#include "support/temporary_folder.h"

namespace vendlingua::test {

/// What one test works at: a folder with files, the running program and the user's answers. The
/// program lies in the subfolder "bin".
struct Desk {
  TemporaryFolder folder;
  DialogAnswerer user;
  RunningProgram program;

  explicit Desk(RunningProgram::Start start = RunningProgram::Start::kNow)
      : program(folder / "bin", start) {}

  QLineEdit& Text1() { return program.Get<QLineEdit>("Text1"); }
  QScrollBar& HScroll1() { return program.Get<QScrollBar>("HScroll1"); }
  ViewState view() { return ViewOf(program.workspace()); }
  bool Modified() { return program.set().Modified != kFalse; }

  /// Chooses a file in the dialog of File, Open.
  void Open(const std::filesystem::path& path) {
    user.Choose(path);
    program.Choose("mnuOpen");
  }

  /// Writes a file and opens it.
  std::filesystem::path Open(std::string_view name, std::string_view content) {
    std::filesystem::path path = folder.Write(name, content);
    Open(path);
    return path;
  }

  /// Opens a ".MES" file, its first language as origin and as destination.
  std::filesystem::path Edit(std::string_view mes_content) {
    std::filesystem::path path = Open("TEST.MES", mes_content);
    program.Choose("mnuori(1)");
    program.Choose("mnuDes(1)");
    return path;
  }
  std::filesystem::path Edit(const MesFile& mes) { return Edit(mes.Bytes()); }

  /// Opens a ".MSX" file, the built-in table as origin, its first language as destination.
  std::filesystem::path EditMsx(std::size_t languages = 2) {
    std::filesystem::path path = Open("TEST.MSX", MsxFile(languages));
    program.Choose("mnuori(0)");
    program.Choose("mnuDes(1)");
    return path;
  }

  /// Replaces the text of the edit box as a user does.
  void Type(const char* text) {
    Text1().selectAll();
    QTest::keyClicks(&Text1(), QLatin1String(text));
  }

  /// The stored destination text of a message, at the width of the set.
  std::string Stored(std::size_t message) {
    const MessageSet& set = program.set();
    return Text(set.DestText.at(message).First(set.Width()));
  }
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_GUI_SUPPORT_DESK_H_
