#ifndef VENDLINGUA_CORE_FORMATS_TEXT_LINES_H_
#define VENDLINGUA_CORE_FORMATS_TEXT_LINES_H_

#include <cstddef>
#include <optional>
#include <string_view>

namespace vendlingua {

enum class LineEnd { kCrAndLf, kLfAlone, kEndOfFile };

struct TextLine {
  std::string_view text;  ///< without its line end
  std::size_t offset;     ///< of its first byte in the file, from 0
  LineEnd end;

  /// A carriage return that ends no line: the file has line ends that are not read as such.
  bool HasLoneCarriageReturn() const { return text.find('\r') != std::string_view::npos; }
};

/// The lines of a text file. A line ends in CR LF or LF; a last line without its end counts.
class TextLines {
 public:
  explicit TextLines(std::string_view content) : content_(content) {}

  std::optional<TextLine> Next() {
    if (AtEnd()) {
      return std::nullopt;
    }
    ++count_;
    const std::size_t start = position_;
    const std::size_t newline = content_.find('\n', start);
    if (newline == std::string_view::npos) {
      position_ = content_.size();
      return TextLine{content_.substr(start), start, LineEnd::kEndOfFile};
    }
    position_ = newline + 1;
    if (newline > start && content_[newline - 1] == '\r') {
      return TextLine{content_.substr(start, newline - 1 - start), start, LineEnd::kCrAndLf};
    }
    return TextLine{content_.substr(start, newline - start), start, LineEnd::kLfAlone};
  }

  /// Whether there is no further line.
  bool AtEnd() const { return position_ >= content_.size(); }

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
