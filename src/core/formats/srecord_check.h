#ifndef VENDLINGUA_CORE_FORMATS_SRECORD_CHECK_H_
#define VENDLINGUA_CORE_FORMATS_SRECORD_CHECK_H_

#include <string>
#include <string_view>

#include "core/formats/file_check.h"

namespace vendlingua {

/// The findings of a file of S-records whose content is given.
Findings CheckSRecords(std::string_view content);

/// What is wrong with one line of a ".MSX" file by itself, its syntax or its checksum; empty for a
/// sound record, an empty line and the one that ends a copy.
std::string DamageOf(std::string_view line);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_SRECORD_CHECK_H_
