#ifndef VENDLINGUA_CLI_REFUSAL_H_
#define VENDLINGUA_CLI_REFUSAL_H_

#include <stdexcept>
#include <string>

namespace vendlingua::cli {

/// What the program tells its caller.
enum class ExitStatus : int { kDone = 0, kFailed = 1, kWrongUsage = 2 };
/// What a comparison tells: 0 when there is no difference, 2 when it could not be made.
inline constexpr ExitStatus kDifferent = ExitStatus::kFailed;
inline constexpr ExitStatus kTrouble = ExitStatus::kWrongUsage;

/// Why the program did not do what it was told, and the exit status that says so. The reason begins
/// with the file that it is about, or with the option.
class Refusal : public std::runtime_error {
 public:
  Refusal(const std::string& reason, ExitStatus status)
      : std::runtime_error(reason), status_(status) {}

  ExitStatus status() const { return status_; }

 private:
  ExitStatus status_;
};

/// A command that was refused or failed.
class CommandFailed : public Refusal {
 public:
  explicit CommandFailed(const std::string& reason) : Refusal(reason, ExitStatus::kFailed) {}
};

/// A command line that is wrong, or that does not fit the given file.
class WrongUsage : public Refusal {
 public:
  explicit WrongUsage(const std::string& reason) : Refusal(reason, ExitStatus::kWrongUsage) {}
};

/// A comparison that could not be made.
class Trouble : public Refusal {
 public:
  explicit Trouble(const std::string& reason) : Refusal(reason, kTrouble) {}
};

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_REFUSAL_H_
