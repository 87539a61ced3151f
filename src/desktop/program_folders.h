#ifndef VENDLINGUA_DESKTOP_PROGRAM_FOLDERS_H_
#define VENDLINGUA_DESKTOP_PROGRAM_FOLDERS_H_

#include "core/document/workspace.h"

namespace vendlingua {

/// Where the files of this program lie; its current folder is left to the start. The settings are
/// named after the executable. Needs the application object and its name.
Folders ProgramFolders();

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_PROGRAM_FOLDERS_H_
