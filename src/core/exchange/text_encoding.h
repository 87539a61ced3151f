#ifndef VENDLINGUA_CORE_EXCHANGE_TEXT_ENCODING_H_
#define VENDLINGUA_CORE_EXCHANGE_TEXT_ENCODING_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/exchange/table_problem.h"

namespace vendlingua {

/// The encodings in which programs hand tables back.
enum class TextEncoding { kUtf8, kUtf16LittleEndian, kUtf16BigEndian, kWindows1252 };

/// How a file is to be read, or why it cannot be.
struct DetectedEncoding {
  TextEncoding encoding = TextEncoding::kUtf8;
  std::size_t mark = 0;  ///< bytes of the byte order mark
  std::optional<TableProblem> problem{};
};

/// Tells the encoding of `content` from its byte order mark; without one it is UTF-8, or
/// Windows-1252 where it cannot be UTF-8. What is mostly UTF-8 is damaged, not Windows-1252.
DetectedEncoding DetectEncoding(std::string_view content);

/// A file as UTF-8 text, piece by piece, so that a large one need not be held twice.
class Utf8Pieces {
 public:
  /// `content`, which must outlive the pieces, is of the encoding that was detected.
  Utf8Pieces(std::string_view content, const DetectedEncoding& detected)
      : rest_(content.substr(detected.mark)), encoding_(detected.encoding) {}

  /// The next piece, valid until the one after it; nothing at the end, or where the file is
  /// malformed.
  std::optional<std::string_view> Next();

  /// Why the pieces ended before the file.
  const std::optional<TableProblem>& problem() const { return problem_; }

 private:
  std::string_view Take(std::size_t bytes);
  void TakeWindows1252();
  void TakeUtf16();

  std::string_view rest_;
  TextEncoding encoding_;
  std::string piece_;
  std::optional<TableProblem> problem_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_EXCHANGE_TEXT_ENCODING_H_
