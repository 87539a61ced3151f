#include "core/operations/exit.h"

#include <filesystem>

namespace vendlingua {

bool Form_Unload(Workspace& workspace, ProgramStarter& starter, MessageFileWriter& writer) {
  std::filesystem::path& current = workspace.folders.current;
  const std::filesystem::path before = current;
  current = current.parent_path();
  starter.Start(current / kSiblingProgram);
  if (writer.NonSave()) {
    return true;
  }
  current = before;
  return false;
}

}  // namespace vendlingua
