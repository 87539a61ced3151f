#ifndef VENDLINGUA_CORE_FORMATS_SRECORD_CHECK_H_
#define VENDLINGUA_CORE_FORMATS_SRECORD_CHECK_H_

#include <string_view>

#include "core/formats/file_check.h"

namespace vendlingua {

/// The findings of a file of S-records whose content is given.
Findings CheckSRecords(std::string_view content);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_SRECORD_CHECK_H_
