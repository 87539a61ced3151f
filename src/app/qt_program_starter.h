#ifndef VENDLINGUA_APP_QT_PROGRAM_STARTER_H_
#define VENDLINGUA_APP_QT_PROGRAM_STARTER_H_

#include "platform/program_starter.h"

namespace vendlingua {

/// Starts programs as processes of their own.
class QtProgramStarter : public ProgramStarter {
 public:
  void Start(const std::filesystem::path& program) override;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_APP_QT_PROGRAM_STARTER_H_
