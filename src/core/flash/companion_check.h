#ifndef VENDLINGUA_CORE_FLASH_COMPANION_CHECK_H_
#define VENDLINGUA_CORE_FLASH_COMPANION_CHECK_H_

#include <filesystem>
#include <string>
#include <vector>

namespace vendlingua {

/// Whether a file is a flash file by its name: ".MHX" or ".hex", in any case.
bool IsFlashFile(const std::filesystem::path& path);

/// Which files beside a sound flash file do not belong to it, one sentence a finding: section files
/// and an identified copy that another compilation made, and a message file that declares another
/// memory. A kill may leave such a set, and so may a flash file that lost its end. A file that is
/// not there is missed only where others of its kind are. Throws FileError when one cannot be read.
std::vector<std::string> CheckCompanions(const std::filesystem::path& flash_file);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FLASH_COMPANION_CHECK_H_
