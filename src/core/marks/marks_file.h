#ifndef VENDLINGUA_CORE_MARKS_MARKS_FILE_H_
#define VENDLINGUA_CORE_MARKS_MARKS_FILE_H_

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/marks/message_mark.h"

namespace vendlingua {

/// A mark as the marks file keeps it.
struct KeptMark {
  std::string language;  ///< its name in the message file, UTF-8
  std::size_t message = 0;
  std::string origin;  ///< what the reference says there (UTF-8), by which an update finds it again
  MessageMark mark;

  bool operator==(const KeptMark&) const = default;
};
using KeptMarks = std::vector<KeptMark>;

/// The marks of a message file lie beside it: NAME.MES.marks.
std::filesystem::path MarksFileOf(const std::filesystem::path& message_file);

/// The content of a marks file, which is JSON, and back. Nothing for any other content.
std::string MarksText(const KeptMarks& marks);
std::optional<KeptMarks> ParseMarks(std::string_view content);

/// The marks beside a message file, none when it has no marks file. Nothing when what lies there
/// cannot be read or holds no marks.
std::optional<KeptMarks> ReadMarks(const std::filesystem::path& message_file);

/// Keeps marks beside a message file; no marks need no file. Throws FileError.
void WriteMarks(const std::filesystem::path& message_file, const KeptMarks& marks);

/// A language was given another name. Marks that cannot be read stay as they are. Throws FileError.
void RenameInMarks(const std::filesystem::path& message_file, std::string_view old_name,
                   const std::string& new_name);

/// A copy of a message file takes its marks along, unless it has marks already. Throws FileError.
void CopyMarks(const std::filesystem::path& message_file, const std::filesystem::path& copy);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_MARKS_MARKS_FILE_H_
