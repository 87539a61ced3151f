#include "core/operations/exit.h"

#include <filesystem>

namespace vendlingua {

bool Form_Unload(Workspace& workspace, ProgramStarter& starter, MessageFileWriter& writer) {
  Folders& folders = workspace.folders;
  const std::filesystem::path before = folders.current;
  // Beside the folder of a message file could lie a program of anybody.
  if (folders.program.has_parent_path()) {
    folders.current = folders.program.parent_path();
    starter.Start(folders.current / kSiblingProgram);
  }
  if (writer.NonSave()) {
    return true;
  }
  folders.current = before;
  return false;
}

}  // namespace vendlingua
