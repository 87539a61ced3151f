#ifndef VENDLINGUA_TESTS_SUPPORT_MESSAGE_FILES_H_
#define VENDLINGUA_TESTS_SUPPORT_MESSAGE_FILES_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/document/display_text.h"

namespace vendlingua::test {

/// A ".MES" file put together by hand: the header text and the bytes of every block as they stand
/// in the file, nothing computed by the program.
struct MesFile {
  std::size_t lang_count = 2;
  std::size_t width = 4;  ///< cells
  std::size_t last_msg = 2;
  std::string flags = "00";  ///< 2 hexadecimal digits
  std::string header_count = "0001";
  std::string mem_start = "00006000";
  std::size_t stride = 3;  ///< `LangStride`, from which the memory length follows
  std::vector<std::string> names = {"Default", "ITALIANO"};

  /// Bytes of one block.
  std::size_t BlockLength() const { return width * (stride + 1) + 20; }

  /// The whole file. Message m of block k reads "kmmm..": the digit of the block, then the digit of
  /// the message repeated to the width; slots behind `last_msg` read "....".
  std::string Bytes() const;

  /// What Bytes() holds as message m of block k.
  std::string Message(std::size_t block, std::size_t message) const;
};

/// The same file with letters for the digits of its messages, which the checks take for numbers:
/// "A" for 0, "B" for 1 and so on.
std::string Lettered(std::string mes_content);

/// A ".MSX" file put together by hand: header record and 455 S2 records a language, with right
/// checksums. Message 169 of language k is "   LANGUAGE k   ", message m of the others is "Lk Mmmm"
/// with blanks behind it up to 16 cells.
std::string MsxFile(std::size_t languages, std::string_view model = "0417");

/// Characters of a message line of MsxFile(), and of its header line, with their CR LF.
inline constexpr std::size_t kMsxLine = 46;
inline constexpr std::size_t kMsxHeaderLine = 44;

/// The text of message m of language k in MsxFile().
std::string MsxMessage(std::size_t language, std::size_t message);

/// One S2 line of MsxFile(), without its line end.
std::string S2Line(std::size_t address, std::string_view data);

/// Two upper-case hexadecimal digits a byte.
std::string HexOf(std::string_view bytes);

/// Every code once, in ascending order.
DisplayCodes AllCodes();

/// A line of a firmware source that holds a text.
std::string SourceLine(std::string_view text);

/// `count` lines of a firmware source that hold one and the same text.
std::string SourceLines(std::size_t count, std::string_view text);

/// ASCII or byte text as display codes.
DisplayCodes Codes(std::string_view bytes);

/// The same as a text of a set.
DisplayText TextFrom(std::string_view bytes);

/// Display codes as byte text, to compare with.
std::string Text(std::span<const DisplayCode> codes);

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_SUPPORT_MESSAGE_FILES_H_
