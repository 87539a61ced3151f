#include "support/temporary_folder.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <vector>

namespace vendlingua::test {

namespace fs = std::filesystem;

namespace {

void ExpectGood(const std::ios& stream, const fs::path& file) {
  if (!stream.good()) {
    throw std::runtime_error("a test file can be neither read nor written: " + file.string());
  }
}

}  // namespace

TemporaryFolder::TemporaryFolder() {
  std::random_device random;
  do {
    path_ = fs::temp_directory_path() / ("vendlingua-test-" + std::to_string(random()));
  } while (!fs::create_directory(path_));
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

fs::path TemporaryFolder::Write(std::string_view name, std::string_view content) const {
  fs::path file = *this / name;
  std::ofstream stream(file, std::ios::binary);
  stream.write(content.data(), static_cast<std::streamsize>(content.size()));
  ExpectGood(stream, file);
  return file;
}

std::string TemporaryFolder::Names() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(path_)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  std::string joined;
  for (const std::string& name : names) {
    joined += (joined.empty() ? "" : " ") + name;
  }
  return joined;
}

std::string Slurp(const fs::path& path) {
  std::ifstream stream(path, std::ios::binary);
  ExpectGood(stream, path);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

}  // namespace vendlingua::test
