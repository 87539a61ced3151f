#include "core/platform/files.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include "core/platform/errors.h"
#include "core/platform/staged_file.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

std::string SystemReason(int error_number) {
  return error_number == 0 ? "unknown error" : std::generic_category().message(error_number);
}

bool FolderIsMissing(const fs::path& file) {
  std::error_code ignored;
  const fs::path folder = file.parent_path();
  return !folder.empty() && !fs::is_directory(folder, ignored);
}

[[noreturn]] void ThrowFileError(const fs::path& file, const std::string& action,
                                 int error_number) {
  const std::string reason = action + ": " + SystemReason(error_number);
  if (FolderIsMissing(file) || error_number == ENODEV || error_number == ENXIO) {
    throw FolderNotReadyError(file, reason);
  }
  throw FileError(file, reason);
}

// Errors name `path`, although the bytes go to `written` until they are complete.
void WritePieces(const fs::path& written, const fs::path& path,
                 std::initializer_list<std::string_view> pieces) {
  errno = 0;
  std::ofstream stream(written, std::ios::binary | std::ios::trunc);
  if (!stream) {
    ThrowFileError(path, "cannot be created", errno);
  }
  for (const std::string_view piece : pieces) {
    stream.write(piece.data(), static_cast<std::streamsize>(piece.size()));
  }
  stream.close();
  if (!stream) {
    ThrowFileError(path, "cannot be written", errno);
  }
}

// A file that may only be read is not to be replaced by a new one either.
void RequireWritable(const fs::path& path) {
  errno = 0;
  if (!std::fstream(path, std::ios::binary | std::ios::in | std::ios::out)) {
    ThrowFileError(path, "cannot be written", errno);
  }
}

void WriteNewFile(const fs::path& path, std::initializer_list<std::string_view> pieces) {
  try {
    WritePieces(path, path, pieces);
  } catch (const FileError&) {
    std::error_code ignored;
    fs::remove(path, ignored);
    throw;
  }
}

void ReplaceFile(const fs::path& path, const fs::file_status& status,
                 std::initializer_list<std::string_view> pieces) {
  RequireWritable(path);
  StagedFile staged(fs::is_symlink(path) ? fs::canonical(path) : path);
  WritePieces(staged.path(), path, pieces);
  std::error_code ignored;  // not every file system keeps modes
  fs::permissions(staged.path(), status.permissions(), ignored);
  staged.Commit();
}

}  // namespace

std::string ReadFile(const fs::path& path, std::uint64_t limit) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) {
    ThrowFileError(path, "cannot be opened", error ? error.value() : ENOENT);
  }
  if (!fs::is_regular_file(status)) {
    throw FileError(path, "is not a file that can be read");
  }
  const std::uint64_t size = fs::file_size(path);
  if (size > limit) {
    throw FileError(path, "is too large: " + std::to_string(size) + " bytes, at most " +
                              std::to_string(limit) + " are read");
  }
  errno = 0;
  std::ifstream stream(path, std::ios::binary);
  if (!stream) {
    ThrowFileError(path, "cannot be opened", errno);
  }
  std::string content(size, '\0');
  stream.read(content.data(), static_cast<std::streamsize>(size));
  if (stream.gcount() != static_cast<std::streamsize>(size)) {
    ThrowFileError(path, "cannot be read", errno);
  }
  return content;
}

void WriteFile(const fs::path& path, std::initializer_list<std::string_view> pieces) {
  std::error_code not_there;
  const fs::file_status status = fs::status(path, not_there);
  if (!fs::exists(status)) {
    WriteNewFile(path, pieces);
  } else if (fs::is_regular_file(status)) {
    ReplaceFile(path, status, pieces);
  } else {
    // A device takes its bytes where it is; a folder refuses them.
    WritePieces(path, path, pieces);
  }
}

PatchFile::PatchFile(fs::path path, IfMissing if_missing) : path_(std::move(path)) {
  const auto mode = std::ios::binary | std::ios::in | std::ios::out;
  std::error_code ignored;
  errno = 0;
  if (if_missing == IfMissing::kCreate && !fs::exists(path_, ignored)) {
    stream_.open(path_, mode | std::ios::trunc);
  } else {
    stream_.open(path_, mode);
  }
  if (!stream_) {
    Fail("cannot be opened for writing");
  }
}

void PatchFile::WriteAt(std::int64_t position, std::string_view bytes) {
  errno = 0;
  stream_.seekp(position - 1);
  stream_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!stream_) {
    Fail("cannot be written at position " + std::to_string(position));
  }
}

void PatchFile::Close() {
  errno = 0;
  stream_.close();
  if (!stream_) {
    Fail("cannot be written");
  }
}

void PatchFile::Fail(const std::string& action) const { ThrowFileError(path_, action, errno); }

}  // namespace vendlingua
