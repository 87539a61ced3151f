#ifndef VENDLINGUA_CORE_PLATFORM_SAME_FILE_H_
#define VENDLINGUA_CORE_PLATFORM_SAME_FILE_H_

#include <filesystem>

namespace vendlingua {

/// Whether two paths lead to the same file: by another spelling, through links, or as two names of
/// one file. A file that is still to be made is known by where its path leads.
bool LeadToSameFile(const std::filesystem::path& a, const std::filesystem::path& b);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_SAME_FILE_H_
