#ifndef VENDLINGUA_CORE_PLATFORM_PROGRAM_STARTER_H_
#define VENDLINGUA_CORE_PLATFORM_PROGRAM_STARTER_H_

#include <filesystem>

namespace vendlingua {

/// Starts other programs.
class ProgramStarter {
 public:
  ProgramStarter() = default;
  ProgramStarter(const ProgramStarter&) = delete;
  ProgramStarter& operator=(const ProgramStarter&) = delete;
  virtual ~ProgramStarter() = default;

  /// Starts `program` in its own folder and does not wait for it. A program that is missing or
  /// cannot be started is passed over.
  virtual void Start(const std::filesystem::path& program) = 0;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_PROGRAM_STARTER_H_
