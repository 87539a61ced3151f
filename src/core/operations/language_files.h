#ifndef VENDLINGUA_CORE_OPERATIONS_LANGUAGE_FILES_H_
#define VENDLINGUA_CORE_OPERATIONS_LANGUAGE_FILES_H_

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vendlingua {

/// The extension of interface language files; in any case it counts.
inline constexpr std::string_view kLanguageFileExtension = ".lng";

/// The name of the file of an interface language, UTF-8.
std::string LanguageFileName(const std::string& language);

/// The names of the interface languages of `folder`: those of its files, UTF-8, less their
/// extension, each once, in alphabetical order without regard to case. Nothing when the folder
/// cannot be read.
std::vector<std::string> LanguageNames(const std::filesystem::path& folder);

/// Where the language file `file_name` (UTF-8) of `folder` lies. A file that goes by this name in
/// another case takes its place; where there is none either, the path leads to no file.
std::filesystem::path LanguageFile(const std::filesystem::path& folder,
                                   const std::string& file_name);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_LANGUAGE_FILES_H_
