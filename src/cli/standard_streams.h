#ifndef VENDLINGUA_CLI_STANDARD_STREAMS_H_
#define VENDLINGUA_CLI_STANDARD_STREAMS_H_

#include <string>
#include <string_view>

namespace vendlingua::cli {

/// While it lives, the standard streams pass all bytes as they are, and a console takes them for
/// UTF-8. Of the systems only Windows has to be told so.
class StreamsOfBytes {
 public:
  StreamsOfBytes();
  StreamsOfBytes(const StreamsOfBytes&) = delete;
  StreamsOfBytes& operator=(const StreamsOfBytes&) = delete;
  // On Windows it has something to put back.
  ~StreamsOfBytes();  // NOLINT(performance-trivially-destructible)

 private:
  unsigned console_code_page_ = 0;  ///< what the console was used to
};

/// Stands for standard input or output where a file is named.
inline constexpr std::string_view kStandardStream = "-";

/// A file as messages name it.
std::string NameOf(const std::string& file);

/// The content of a file, or all of standard input. Throws CommandFailed or FileError when it
/// cannot be read or is too large.
std::string ReadInput(const std::string& file);

/// Writes a file, or to standard output. Throws CommandFailed or FileError.
void WriteOutput(const std::string& file, std::string_view content);

/// Prints lines on standard error, each behind the name of the program. What of them is no UTF-8
/// becomes U+FFFD.
void TellOnStderr(std::string_view lines);

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_STANDARD_STREAMS_H_
