#ifndef VENDLINGUA_CORE_PROOF_GLASS_PICTURE_H_
#define VENDLINGUA_CORE_PROOF_GLASS_PICTURE_H_

#include <string>
#include <vector>

#include "core/document/alphabet.h"
#include "core/proof/glass.h"

namespace vendlingua {

/// The rows of a display as a PNG picture: 8 pixels a dot, white on its blue backlight. Rows may
/// differ in width.
std::string GlassPicture(const std::vector<std::vector<GlassCell>>& rows, const Alphabet& alphabet);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PROOF_GLASS_PICTURE_H_
