#include "core/operations/language_files.h"

#include <algorithm>
#include <system_error>
#include <tuple>

#include "core/platform/errors.h"
#include "core/texts/ascii_case.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

struct Language {
  std::string name;
  fs::path file;
};

bool IsLanguageFile(const fs::directory_entry& entry) {
  std::error_code gone;
  return UpperCase(PathText(entry.path().extension())) ==
             UpperCase(std::string(kLanguageFileExtension)) &&
         entry.is_regular_file(gone);
}

std::vector<Language> LanguagesIn(const fs::path& folder) {
  std::vector<Language> languages;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (IsLanguageFile(*entry)) {
      languages.push_back({PathText(entry->path().stem()), entry->path()});
    }
  }
  std::sort(languages.begin(), languages.end(), [](const Language& a, const Language& b) {
    return std::tuple(UpperCase(a.name), a.name, a.file) <
           std::tuple(UpperCase(b.name), b.name, b.file);
  });
  return languages;
}

}  // namespace

std::string LanguageFileName(const std::string& language) {
  return language + std::string(kLanguageFileExtension);
}

std::vector<std::string> LanguageNames(const fs::path& folder) {
  std::vector<std::string> names;
  for (const Language& language : LanguagesIn(folder)) {
    names.push_back(language.name);
  }
  names.erase(std::unique(names.begin(), names.end()), names.end());
  return names;
}

fs::path LanguageFile(const fs::path& folder, const std::string& file_name) {
  const fs::path name(std::u8string(file_name.begin(), file_name.end()));
  std::error_code not_there;
  if (fs::is_regular_file(folder / name, not_there)) {
    return folder / name;
  }
  const std::vector<Language> languages = LanguagesIn(folder);
  const std::string wanted = PathText(name.stem());
  auto found = std::find_if(languages.begin(), languages.end(),
                            [&](const Language& language) { return language.name == wanted; });
  if (found == languages.end()) {
    found = std::find_if(languages.begin(), languages.end(), [&](const Language& language) {
      return UpperCase(language.name) == UpperCase(wanted);
    });
  }
  return found == languages.end() ? folder / name : found->file;
}

}  // namespace vendlingua
