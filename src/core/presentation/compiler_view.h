#ifndef VENDLINGUA_CORE_PRESENTATION_COMPILER_VIEW_H_
#define VENDLINGUA_CORE_PRESENTATION_COMPILER_VIEW_H_

#include <array>
#include <string>

#include "core/document/message_set.h"
#include "core/flash/compiler_state.h"

namespace vendlingua {

/// What the compiler window shows, under the names of its controls.
struct CompilerView {
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
};

/// A ".MES" file is compiled from exactly `LangCount` ticked languages: with so many ticked no
/// further one can be, and only then the compile button is enabled. A ".MSX" file is compiled as a
/// whole and has no entries.
CompilerView CompilerViewOf(const MessageSet& set, const CompilerState& state);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PRESENTATION_COMPILER_VIEW_H_
