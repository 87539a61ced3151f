#ifndef VENDLINGUA_TESTS_TORTURE_FAULT_PLAN_H_
#define VENDLINGUA_TESTS_TORTURE_FAULT_PLAN_H_

#include <string>
#include <string_view>

// Which call of the system gets which fault, as the environment says it:
//
//   FAULTS_FOLDER  the folder
//   FAULTS_AT      the number of the call, from 1 on; 0 for none
//   FAULTS_KIND    an errno (ENOSPC, EIO, EINTR, EACCES, ENOLCK), "short" for a write of which
//                  half is done, "kill" before the call, "kill-after" it, or "kill-half" of a write
//   FAULTS_STAY    set: every later call of that kind fails, too, as on a disk that stays full
//   FAULTS_ONLY    set: only calls of this name are counted
//   FAULTS_LOG     a file that gets a line for every call that was counted: name, result, path and,
//                  of what changes files, all that is needed to do it again

namespace vendlingua::test {

/// Whether `path` is the folder or lies in it.
bool IsInFolder(std::string_view path);

/// What becomes of a call.
enum class Fate { kDone, kFails, kShort, kKilledBefore, kKilledAfter, kKilledHalf };

/// Counts the call and tells its fate. `errno` is set for one that fails.
Fate FateOf(std::string_view call);

/// Adds a line to the log, if there is one.
void Log(const std::string& line);

/// Ends the program as a kill does.
[[noreturn]] void Die();

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_TORTURE_FAULT_PLAN_H_
