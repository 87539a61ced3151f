#include "gui/support/running_program.h"

#include <QMenu>
#include <algorithm>
#include <filesystem>

#include "core/operations/start_up.h"
#include "desktop/fonts/qt_font_list.h"

namespace vendlingua::test {
namespace {

namespace fs = std::filesystem;

const fs::path kLanguagesFolder = VENDLINGUA_LANGUAGES_FOLDER;
const fs::path kFontsFolder = VENDLINGUA_FONTS_FOLDER;

// A user reaches an entry through the menus that hold it.
bool IsInReach(const QAction& entry) {
  const QObjectList holders = entry.associatedObjects();
  return entry.isEnabled() && entry.isVisible() &&
         std::all_of(holders.begin(), holders.end(), [](const QObject* holder) {
           const auto* menu = qobject_cast<const QMenu*>(holder);
           return menu == nullptr || IsInReach(*menu->menuAction());
         });
}

}  // namespace

RunningProgram::RunningProgram(const fs::path& folder, Start start) : engine_(dialogs_) {
  fs::create_directories(folder);
  for (const auto& entry : fs::directory_iterator(kLanguagesFolder)) {
    fs::copy_file(entry.path(), folder / entry.path().filename(), fs::copy_options::skip_existing);
  }
  engine_.workspace.folders = {.program = folder,
                               .current = folder,
                               .settings = folder / "vendlingua.ini",
                               .user_settings = folder / "user" / "vendlingua.ini",
                               .journals = folder / "user" / "journals"};
  if (start == Start::kLater) {
    return;
  }
  if (!Load()) {
    qFatal("the program does not start");
  }
  Show();
}

RunningProgram::~RunningProgram() = default;

bool RunningProgram::Load(const FontList& fonts) {
  if (!StartUp(engine_.workspace, dialogs_, fonts).Form_Load()) {
    return false;
  }
  window_ = std::make_unique<FrmMes>(engine_, dialogs_, starts_);
  return true;
}

bool RunningProgram::Load() { return Load(QtFontList(kFontsFolder)); }

void RunningProgram::Show() {
  window_->show();
  QApplication::processEvents();
}

// It is a window of its own and has no parent.
FrmDesk& RunningProgram::desk() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* desk = qobject_cast<FrmDesk*>(window)) {
      return *desk;
    }
  }
  qFatal("the desk is not open");
}

void RunningProgram::Choose(const char* name) {
  QAction& entry = Entry(name);
  if (IsInReach(entry)) {
    entry.trigger();
  }
}

void RunningProgram::OpenMenu(const char* name) {
  emit window_->findChild<QMenu*>(QLatin1String(name))->aboutToShow();
}

}  // namespace vendlingua::test
