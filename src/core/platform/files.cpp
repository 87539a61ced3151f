#include "core/platform/files.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include "core/platform/errors.h"
#include "core/platform/file_errors.h"
#include "core/platform/staged_file.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

std::error_code LastError() { return {errno, std::generic_category()}; }

// A device takes its bytes where it is; a folder refuses them.
void WriteInPlace(const fs::path& path, std::initializer_list<std::string_view> pieces) {
  errno = 0;
  std::ofstream stream(path, std::ios::binary);
  if (!stream) {
    ThrowFileError(path, UiTextId::kCannotBeCreated, LastError());
  }
  for (const std::string_view piece : pieces) {
    stream.write(piece.data(), static_cast<std::streamsize>(piece.size()));
  }
  stream.close();
  if (!stream) {
    ThrowFileError(path, UiTextId::kCannotBeWritten, LastError());
  }
}

// A file that may only be read is not to be replaced by a new one either.
void RequireWritable(const fs::path& path) {
  errno = 0;
  if (!std::fstream(path, std::ios::binary | std::ios::in | std::ios::out)) {
    ThrowFileError(path, UiTextId::kCannotBeWritten, LastError());
  }
}

}  // namespace

std::string ReadFile(const fs::path& path, std::uint64_t limit) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) {
    ThrowFileError(path, UiTextId::kCannotBeOpened,
                   error ? error : std::make_error_code(std::errc::no_such_file_or_directory));
  }
  if (!fs::is_regular_file(status)) {
    throw FileError(path, UiTextId::kNoReadableFile);
  }
  const std::uint64_t size = fs::file_size(path);
  if (size > limit) {
    throw FileError(path, UiTextId::kFileIsTooLarge, size, limit);
  }
  errno = 0;
  std::ifstream stream(path, std::ios::binary);
  if (!stream) {
    ThrowFileError(path, UiTextId::kCannotBeOpened, LastError());
  }
  std::string content(size, '\0');
  stream.read(content.data(), static_cast<std::streamsize>(size));
  if (stream.gcount() != static_cast<std::streamsize>(size)) {
    ThrowFileError(path, UiTextId::kCannotBeRead, LastError());
  }
  return content;
}

void WriteFile(const fs::path& path, std::initializer_list<std::string_view> pieces) {
  std::error_code not_there;
  const fs::file_status status = fs::status(path, not_there);
  const bool replaces = fs::is_regular_file(status);
  if (fs::exists(status) && !replaces) {
    WriteInPlace(path, pieces);
    return;
  }
  if (replaces) {
    RequireWritable(path);
  }
  StagedFile staged(path);
  for (const std::string_view piece : pieces) {
    staged.Write(piece);
  }
  if (replaces) {
    staged.SetPermissions(status.permissions());
  }
  staged.Commit();
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
    ThrowFileError(path_, UiTextId::kCannotBeWritten, LastError());
  }
}

void PatchFile::WriteAt(std::int64_t position, std::string_view bytes) {
  errno = 0;
  stream_.seekp(position);
  stream_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!stream_) {
    ThrowFileError(path_, UiTextId::kCannotBeWrittenAt, LastError(), position + 1);
  }
}

void PatchFile::Close() {
  errno = 0;
  stream_.close();
  if (!stream_) {
    ThrowFileError(path_, UiTextId::kCannotBeWritten, LastError());
  }
}

void ApplyPatches(const fs::path& path, const std::vector<FilePatch>& patches) {
  PatchFile file(path, PatchFile::IfMissing::kFail);
  for (const FilePatch& patch : patches) {
    file.WriteAt(patch.position, patch.bytes);
  }
  file.Close();
}

}  // namespace vendlingua
