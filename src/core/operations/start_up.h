#ifndef VENDLINGUA_CORE_OPERATIONS_START_UP_H_
#define VENDLINGUA_CORE_OPERATIONS_START_UP_H_

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/document/workspace.h"
#include "core/platform/dialogs.h"
#include "core/platform/font_list.h"

namespace vendlingua {

/// One bit for each display font that is among `families`, in any case: "LCD" 1, "LCD_CY" 2, "LCD
/// KTV" 4, "LCD HBR" 8.
int FontMask(std::span<const std::string> families);

/// `FontMask` when every message can be drawn.
inline constexpr int kAllDisplayFonts = 15;

/// What happens before the main window is shown. `Folders::program` and the two settings files of
/// the workspace are set already.
class StartUp {
 public:
  StartUp(Workspace& workspace, Dialogs& dialogs, const FontList& fonts);

  /// Loads the interface language, refuses to go on without the display fonts, reads the settings
  /// and captions the menus. False when the program has to end; the user was told why.
  bool Form_Load();

  /// Lists the interface languages of the current folder and loads the one of the settings, or the
  /// first of the list. False when there is none; the user was told. Those that cannot be read are
  /// left out and named; the reference is there all the same, built in. A language listed tenth is
  /// never loaded here.
  bool CeckLingue();

 private:
  void ReportMissingFile();
  std::vector<std::string> UsableOf(std::vector<std::string> names);

  Workspace& workspace_;
  Dialogs& dialogs_;
  const FontList& fonts_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_START_UP_H_
