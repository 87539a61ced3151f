#ifndef VENDLINGUA_CORE_FLASH_FLASH_COMPILER_H_
#define VENDLINGUA_CORE_FLASH_FLASH_COMPILER_H_

#include <cstddef>
#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/document/workspace.h"
#include "core/flash/compiler_state.h"
#include "core/flash/flash_image.h"
#include "core/flash/section_files.h"
#include "core/platform/dialogs.h"
#include "core/platform/staged_files.h"

namespace vendlingua {

/// Of a ".MSX" file so many lines behind its header are compiled.
inline constexpr std::size_t kMsxLinesCompiled = 4095;

/// Extension of the flash files of a set's board, without dot: "MHX" or "hex".
std::string FlashExtension(const MessageSet& set);

/// Where the outputs of a run go. The section files stand beside the flash file.
struct CompileOutputs {
  std::filesystem::path flash_file;
  std::optional<std::filesystem::path> copy;  ///< nothing as long as it is not known
};

struct CompileOutcome {
  /// A language that ends before its last message.
  struct ShortLanguage {
    int number;
    std::string name;  ///< UTF-8
  };

  /// A line of a ".MSX" file that is no sound record.
  struct DamagedRecord {
    std::size_t line;    ///< from 1, the header line
    std::string damage;  ///< English
  };

  std::vector<std::filesystem::path> written;
  std::vector<ShortLanguage> short_languages;  ///< compiled with 0 for what is not there
  std::vector<DamagedRecord> damaged_records;  ///< compiled as they are
  bool completed = false;                      ///< the last step was reached
};

/// Compiles the ticked languages of the saved message file into a flash file, its identified copy
/// and, for ".MHX" boards, the section files.
class FlashCompiler {
 public:
  FlashCompiler(Workspace& workspace, Dialogs& dialogs, CompilerState& compiler,
                FlashImage& flash_image, SectionFiles& section_files);

  /// The compile button. All files of a run take their names together, at its end. Two stops (the
  /// name of the flash file gives no name for the copy; the file question for the copy of nine
  /// languages is cancelled) end it with the flash file alone, and leave both buttons disabled and
  /// the hourglass on. Throws Error, with both buttons enabled again and the files of the run
  /// before as they were, when the message file cannot be compiled, when CheckOutputs() does, or
  /// when a file cannot be written.
  CompileOutcome Compile();

  /// Throws FileError when an output would take the place of the message file or of another output,
  /// or when no file can be written there. Compile() looks before it writes the first byte, and
  /// again as more becomes known.
  void CheckOutputs(const CompileOutputs& outputs) const;

 private:
  /// What one run makes.
  struct Work {
    CompileOutputs outputs;
    std::string records;  ///< of the flash file
    StagedFiles files;
    CompileOutcome outcome;

    void Add(const std::filesystem::path& path, std::initializer_list<std::string_view> pieces) {
      files.Add(path, pieces);
      outcome.written.push_back(path);
    }
  };

  bool IsMhxFamily() const { return workspace_.set.HeaderBit1 != kFalse; }
  std::filesystem::path AskPath(FilePurpose purpose, UiTextId title, const std::string& extension,
                                bool overwrite_prompt);
  std::optional<std::filesystem::path> NamedCopy(const std::filesystem::path& flash_file) const;
  void Run(Work& work);
  bool CompileMes(Work& work);
  FlashImage PackedImage(CompileOutcome& outcome) const;
  void CompileMsx(Work& work);
  bool AddNineLanguageCopy(Work& work);
  bool AddNamedCopy(Work& work);
  void AddSectionFiles(Work& work);
  void SetBusy(bool busy);

  Workspace& workspace_;
  Dialogs& dialogs_;
  CompilerState& compiler_;
  FlashImage& flash_image_;
  SectionFiles& section_files_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FLASH_FLASH_COMPILER_H_
