#ifndef VENDLINGUA_CORE_PLATFORM_EXECUTABLE_FOLDER_H_
#define VENDLINGUA_CORE_PLATFORM_EXECUTABLE_FOLDER_H_

#include <filesystem>

namespace vendlingua {

/// The folder of the running program, symbolic links resolved; language files lie there. Empty,
/// which means the folder that the program was started in, where the system does not tell.
std::filesystem::path ExecutableFolder();

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_EXECUTABLE_FOLDER_H_
