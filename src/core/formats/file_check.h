#ifndef VENDLINGUA_CORE_FORMATS_FILE_CHECK_H_
#define VENDLINGUA_CORE_FORMATS_FILE_CHECK_H_

#include <filesystem>
#include <string>
#include <vector>

namespace vendlingua {

/// What is wrong with a file, one sentence a finding, in the order of the file; empty for a sound
/// one.
using Findings = std::vector<std::string>;

/// Checks a ".MES" file (header, sizes, block count, names) or, by its content, a file of S-records
/// (syntax, count, checksum, gaps and overlaps, line by line). The checksum of an identified copy's
/// header and the line that ends a nine-language copy are known and not reported. Throws FileError
/// when the file cannot be read.
Findings CheckFile(const std::filesystem::path& path);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_FILE_CHECK_H_
