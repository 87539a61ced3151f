#ifndef VENDLINGUA_CORE_OPERATIONS_EXIT_H_
#define VENDLINGUA_CORE_OPERATIONS_EXIT_H_

#include <string_view>

#include "core/document/workspace.h"
#include "core/operations/message_file_writer.h"
#include "core/platform/program_starter.h"

namespace vendlingua {

/// The program that configures the machine; it lies in the parent of the program's own folder.
inline constexpr std::string_view kSiblingProgram = "MACHCONFIG.EXE";

/// What happens when the main window is closed: starts the sibling program, then offers to save
/// pending changes. False when they could not be saved: the program goes on, so that they can be
/// saved elsewhere.
bool Form_Unload(Workspace& workspace, ProgramStarter& starter, MessageFileWriter& writer);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_EXIT_H_
