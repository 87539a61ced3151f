#ifndef VENDLINGUA_CORE_PLATFORM_LINKS_H_
#define VENDLINGUA_CORE_PLATFORM_LINKS_H_

#include <filesystem>

namespace vendlingua {

/// Where `path` leads as a link, be it to a file that is not there yet, which the canonical path of
/// the library does not follow. A link in a circle leads to a link.
std::filesystem::path FollowLinks(std::filesystem::path path);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_LINKS_H_
