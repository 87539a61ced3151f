#ifndef VENDLINGUA_CORE_PLATFORM_EXECUTABLE_FOLDER_H_
#define VENDLINGUA_CORE_PLATFORM_EXECUTABLE_FOLDER_H_

#include <filesystem>

namespace vendlingua {

/// The file of the running program, symbolic links resolved. Empty where the system does not tell.
std::filesystem::path ExecutableFile();

/// The folder of that file; language files lie there. Where the system does not tell, "." stands
/// for the folder that the program was started in.
std::filesystem::path ExecutableFolder();

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_EXECUTABLE_FOLDER_H_
