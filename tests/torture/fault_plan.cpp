#include "fault_plan.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <initializer_list>
#include <map>

namespace vendlingua::test {
namespace {

std::string Setting(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

const std::string& Folder() {
  static const std::string kFolder = Setting("FAULTS_FOLDER");
  return kFolder;
}

int ErrorOf(const std::string& kind) {
  static const std::map<std::string, int> kErrors = {
      {"ENOSPC", ENOSPC}, {"EIO", EIO}, {"EINTR", EINTR}, {"EACCES", EACCES}, {"ENOLCK", ENOLCK}};
  const auto error = kErrors.find(kind);
  return error == kErrors.end() ? 0 : error->second;
}

// Whether the system could answer a call so.
bool CanFailWith(std::string_view call, int error) {
  const auto is_one_of = [call](std::initializer_list<std::string_view> calls) {
    return std::find(calls.begin(), calls.end(), call) != calls.end();
  };
  switch (error) {
    case ENOSPC:
      return is_one_of({"create", "write", "pwrite", "ftruncate", "fsync", "rename"});
    case EINTR:
      return is_one_of({"create", "open", "write", "pwrite", "read", "pread", "ftruncate", "fsync",
                        "flock", "close"});
    case EACCES:
      return is_one_of({"create", "open", "rename", "unlink"});
    case ENOLCK:
      return call == "flock";
    default:
      return true;
  }
}

}  // namespace

bool IsInFolder(std::string_view path) {
  return !Folder().empty() && path.starts_with(Folder()) &&
         (path.size() == Folder().size() || path[Folder().size()] == '/');
}

void Log(const std::string& line) {
  static const std::string kLog = Setting("FAULTS_LOG");
  if (kLog.empty()) {
    return;
  }
  static const auto kFile =
      syscall(SYS_openat, AT_FDCWD, kLog.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
  const std::string ended = line + "\n";
  syscall(SYS_write, kFile, ended.data(), ended.size());
}

Fate FateOf(std::string_view call) {
  static const std::string kKind = Setting("FAULTS_KIND");
  static const std::string kOnly = Setting("FAULTS_ONLY");
  static const bool kStays = !Setting("FAULTS_STAY").empty();
  static const int kAt = std::atoi(Setting("FAULTS_AT").c_str());
  static int count = 0;
  if (!kOnly.empty() && call != kOnly) {
    return Fate::kDone;
  }
  ++count;
  if (kAt == 0 || count < kAt || (count > kAt && !kStays)) {
    return Fate::kDone;
  }
  const bool is_write = call == "write" || call == "pwrite";
  if (kKind == "kill") {
    return Fate::kKilledBefore;
  }
  if (kKind == "kill-after") {
    return Fate::kKilledAfter;
  }
  if (kKind == "kill-half") {
    return is_write ? Fate::kKilledHalf : Fate::kDone;
  }
  if (kKind == "short") {
    return is_write ? Fate::kShort : Fate::kDone;
  }
  errno = ErrorOf(kKind);
  return CanFailWith(call, errno) ? Fate::kFails : Fate::kDone;
}

[[noreturn]] void Die() {
  syscall(SYS_kill, getpid(), SIGKILL);
  for (;;) {
  }
}

}  // namespace vendlingua::test
