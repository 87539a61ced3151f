#ifndef VENDLINGUA_CORE_PRESENTATION_REVISION_LINE_H_
#define VENDLINGUA_CORE_PRESENTATION_REVISION_LINE_H_

#include <string>

namespace vendlingua {

/// The revision line of the information window: "Rev. 1.1.20". The major number carries the blank
/// of its sign.
inline std::string RevisionLine(int major, int minor, int revision) {
  return "Rev. " + std::to_string(major) + "." + std::to_string(minor) + "." +
         std::to_string(revision);
}

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PRESENTATION_REVISION_LINE_H_
