#ifndef VENDLINGUA_CORE_FLASH_COMPILER_STATE_H_
#define VENDLINGUA_CORE_FLASH_COMPILER_STATE_H_

#include <array>
#include <string>
#include <vector>

#include "core/presentation/menu_state.h"

namespace vendlingua {

/// What the compiler window shows, as plain data under the names of its controls.
struct CompilerState {
  /// Entry i is language i of the message file; entry 0 is not used.
  struct Entry {
    std::string caption;  ///< UTF-8
    bool visible = false;
    bool ticked = false;
    bool enabled = true;
  };

  std::array<Entry, kLanguageEntries> Check1;
  bool Command1Enabled = false;  ///< compile
  bool Command2Enabled = true;   ///< close
  bool hourglass = false;        ///< on this window and on the main window
  std::string status;            ///< how the last run ended, UTF-8

  /// Numbers of the ticked entries, ascending.
  std::vector<int> TickedLanguages() const;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FLASH_COMPILER_STATE_H_
