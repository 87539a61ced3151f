#include "core/formats/journal_files.h"

#include <algorithm>
#include <cstdint>

#include "core/platform/errors.h"
#include "core/platform/files.h"
#include "core/platform/temporary_name.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

constexpr const char* kJournalExtension = ".journal";
constexpr const char* kPutAsideExtension = ".old";
constexpr std::uint64_t kJournalLimit = std::uint64_t{16} << 20U;

}  // namespace

std::vector<fs::path> JournalsIn(const fs::path& folder) {
  std::vector<fs::path> journals;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (entry->path().extension() == kJournalExtension) {
      journals.push_back(entry->path());
    }
  }
  std::sort(journals.begin(), journals.end());
  return journals;
}

fs::path NewJournalPath(const fs::path& folder) {
  std::error_code ignored;
  fs::create_directories(folder, ignored);
  return folder / TemporaryName().replace_extension(kJournalExtension);
}

std::error_code CreateJournal(FileHandle& file, const fs::path& path,
                              const JournalSubject& subject) {
  const std::error_code error = file.CreateNew(path);
  if (error) {
    return error;
  }
  file.TryLock(FileHandle::LockKind::kExclusive);
  return file.Write(ComposeJournalHead(subject));
}

std::optional<EditJournal> TakeJournal(FileHandle& file, const fs::path& path) {
  try {
    OpenRegularFile(file, path, FileHandle::Access::kRead);
    if (file.TryLock(FileHandle::LockKind::kExclusive) == std::errc::operation_would_block) {
      return std::nullopt;
    }
    return ParseJournal(ReadWhole(file, path, kJournalLimit));
  } catch (const FileError&) {
    return std::nullopt;
  }
}

void RemoveJournal(FileHandle& file, const fs::path& path) {
  file.Close();
  std::error_code ignored;
  fs::remove(path, ignored);
}

fs::path PutJournalAside(FileHandle& file, const fs::path& path) {
  file.Close();
  fs::path aside = path;
  aside.replace_extension(kPutAsideExtension);
  std::error_code ignored;
  fs::rename(path, aside, ignored);
  return aside;
}

}  // namespace vendlingua
