#ifndef VENDLINGUA_DESKTOP_QT_PROGRAM_STARTER_H_
#define VENDLINGUA_DESKTOP_QT_PROGRAM_STARTER_H_

#include "core/platform/program_starter.h"

namespace vendlingua {

/// Starts programs as processes of their own.
class QtProgramStarter : public ProgramStarter {
 public:
  void Start(const std::filesystem::path& program) override;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_QT_PROGRAM_STARTER_H_
