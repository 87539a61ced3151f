#ifndef VENDLINGUA_CORE_FLASH_FLASH_COMPILER_H_
#define VENDLINGUA_CORE_FLASH_FLASH_COMPILER_H_

#include <filesystem>
#include <string>
#include <vector>

#include "core/document/workspace.h"
#include "core/flash/compiler_state.h"
#include "core/flash/flash_image.h"
#include "core/flash/section_files.h"
#include "core/platform/dialogs.h"

namespace vendlingua {

struct CompileOutcome {
  std::vector<std::filesystem::path> written;
  bool completed = false;  ///< the last step was reached
};

/// Compiles the ticked languages of the saved message file into a flash file, its identified copy
/// and, for ".MHX" boards, the section files.
class FlashCompiler {
 public:
  FlashCompiler(Workspace& workspace, Dialogs& dialogs, CompilerState& compiler,
                FlashImage& flash_image, SectionFiles& section_files);

  /// The compile button. Two stops (the name of the flash file gives no name for the copy; the file
  /// question for the copy of nine languages is cancelled) leave both buttons disabled and the
  /// hourglass on. Throws Error, with both buttons enabled again, when the message file cannot be
  /// compiled or a file cannot be written.
  CompileOutcome Compile();

 private:
  bool IsMhxFamily() const { return workspace_.set.HeaderBit1 != kFalse; }
  std::filesystem::path AskPath(FilePurpose purpose, const std::string& extension,
                                bool overwrite_prompt);
  void RefuseSource(const std::filesystem::path& path) const;
  void Run(const std::filesystem::path& flash_file, CompileOutcome& outcome);
  bool CompileMes(const std::filesystem::path& flash_file, CompileOutcome& outcome);
  FlashImage PackedImage() const;
  void CompileMsx(const std::filesystem::path& flash_file, CompileOutcome& outcome);
  bool WriteCopy(const std::filesystem::path& flash_file, const std::string& records,
                 CompileOutcome& outcome);
  bool WriteNineLanguageCopy(const std::string& records, CompileOutcome& outcome);
  bool WriteNamedCopy(const std::filesystem::path& flash_file, const std::string& records,
                      CompileOutcome& outcome);
  void WriteSectionFiles(const std::filesystem::path& flash_file, CompileOutcome& outcome);
  void SetBusy(bool busy);

  Workspace& workspace_;
  Dialogs& dialogs_;
  CompilerState& compiler_;
  FlashImage& flash_image_;
  SectionFiles& section_files_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FLASH_FLASH_COMPILER_H_
