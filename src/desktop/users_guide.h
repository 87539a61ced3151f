#ifndef VENDLINGUA_DESKTOP_USERS_GUIDE_H_
#define VENDLINGUA_DESKTOP_USERS_GUIDE_H_

#include <filesystem>

#include "core/document/workspace.h"

namespace vendlingua {

/// The first page of the user's guide: in Italian where the interface is, in English otherwise.
std::filesystem::path GuidePage(const Workspace& workspace);

/// Shows it in the browser. Throws Error when it is not there.
void OpenGuide(const Workspace& workspace);

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_USERS_GUIDE_H_
