#include "cli/table_files.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "cli/session.h"
#include "core/exchange/language_tags.h"
#include "core/exchange/table_format.h"
#include "core/platform/errors.h"
#include "core/platform/path_of.h"

namespace vendlingua::cli {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> TablePaths(const std::string& folder) {
  std::error_code error;
  std::vector<fs::path> paths;
  for (fs::directory_iterator entry(PathOf(folder), error), end; !error && entry != end;
       entry.increment(error)) {
    if (HasTableName(entry->path())) {
      paths.push_back(entry->path());
    }
  }
  if (error) {
    throw CommandFailed(folder + ": the folder cannot be read: " + error.message());
  }
  if (paths.empty()) {
    throw CommandFailed(folder + ": holds no table (.csv, .xliff, .xlf)");
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

}  // namespace

std::vector<TableFile> TablesIn(const std::string& folder, const MessageSet& set) {
  const std::vector<std::string> tags = LanguageTags(set);
  std::vector<TableFile> tables;
  for (const fs::path& path : TablePaths(folder)) {
    const auto tag = std::find(tags.begin() + 1, tags.end(), path.stem());
    if (tag == tags.end()) {
      throw CommandFailed(PathText(path) + ": " + PathText(set.CurrentFileName) +
                          " has no language of this name; \"new-language\" adds one");
    }
    tables.push_back({path.string(), static_cast<int>(tag - tags.begin())});
  }
  const auto by_language = [](const TableFile& a, const TableFile& b) {
    return a.language < b.language;
  };
  std::stable_sort(tables.begin(), tables.end(), by_language);
  const auto twice = std::adjacent_find(
      tables.begin(), tables.end(),
      [](const TableFile& a, const TableFile& b) { return a.language == b.language; });
  if (twice != tables.end()) {
    throw CommandFailed((twice + 1)->path + ": is a second table of its language beside " +
                        twice->path);
  }
  return tables;
}

}  // namespace vendlingua::cli
