#ifndef VENDLINGUA_CORE_FLASH_LANGUAGE_SELECTION_H_
#define VENDLINGUA_CORE_FLASH_LANGUAGE_SELECTION_H_

#include "core/document/workspace.h"
#include "core/flash/compiler_state.h"

namespace vendlingua {

/// Fills the entries with the languages of the open file: for a ".MES" file those of the
/// destination menu, none of them ticked; a ".MSX" file is compiled as a whole and has none.
void LoadEntries(const Workspace& workspace, CompilerState& compiler);

/// Ticks or unticks entry `language`. Exactly `lang_count` languages can be compiled: with so many
/// ticked no further one can be ticked, and only then the compile button is enabled.
void TickEntry(CompilerState& compiler, int language, bool ticked, int lang_count);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FLASH_LANGUAGE_SELECTION_H_
