#ifndef VENDLINGUA_CORE_FORMATS_TEXT_LINES_H_
#define VENDLINGUA_CORE_FORMATS_TEXT_LINES_H_

#include <cstddef>
#include <optional>
#include <string_view>

namespace vendlingua {

struct TextLine {
  std::string_view text;  ///< without its line end
  std::size_t offset;     ///< of its first byte in the file, from 0
  bool ends_in_crlf;      ///< otherwise it ends in LF, or with the file

  /// A carriage return that ends no line: the file has line ends that are not read as such.
  bool HasLoneCarriageReturn() const { return text.find('\r') != std::string_view::npos; }
};

/// The lines of a text file. A line ends in CR LF or LF; a last line without its end counts.
class TextLines {
 public:
  explicit TextLines(std::string_view content) : content_(content) {}

  std::optional<TextLine> Next() {
    if (position_ >= content_.size()) {
      return std::nullopt;
    }
    ++count_;
    const std::size_t start = position_;
    const std::size_t newline = content_.find('\n', start);
    const std::size_t end = newline == std::string_view::npos ? content_.size() : newline;
    position_ = newline == std::string_view::npos ? end : end + 1;
    const bool crlf = end < content_.size() && end > start && content_[end - 1] == '\r';
    return TextLine{content_.substr(start, (crlf ? end - 1 : end) - start), start, crlf};
  }

  /// Passes over `lines` lines; false when the file ends before.
  bool Skip(std::size_t lines) {
    for (; lines > 0; --lines) {
      if (!Next()) {
        return false;
      }
    }
    return true;
  }

  /// How many lines were read: the number, counted from 1, of the last one.
  std::size_t count() const { return count_; }

 private:
  std::string_view content_;
  std::size_t position_ = 0;
  std::size_t count_ = 0;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_TEXT_LINES_H_
